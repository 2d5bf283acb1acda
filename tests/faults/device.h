#pragma once

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/iso_day.h"
#include "base/number.h"
#include "base/text.h"
#include "feeds/rates_origin.h"
#include "feeds/rates_update.h"
#include "feeds/standard_networks.h"
#include "places/city_list_store.h"
#include "platform/fake/fake_connection_manager.h"
#include "platform/fake/fixed_clock.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/registry_value.h"
#include "shell/application_folder.h"
#include "shell/language_install.h"
#include "shell/language_list.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "skins/skin_draft.h"
#include "tools/converter/unit_database.h"
#include "tools/packing/packing_file.h"
#include "tools/packing/packing_store.h"

namespace rlx::test {

constexpr std::u16string_view kKey = u"Roamlytix\\faults";
constexpr std::u16string_view kFront = u"0 in front";
constexpr std::size_t kUnits = 6;  // a category that units can be added to
constexpr std::size_t kRates = 40;

inline void Must(bool truth, const char* what) {
    if (!truth) throw std::runtime_error(what);
}

inline std::u16string Text(std::uint32_t number) {
    return FormatInteger(number);
}

inline std::uint32_t NumberIn(std::u16string_view text) {
    const auto number = ParseWholeInteger(text, 0, 1 << 30);
    Must(number.has_value(), "a text that is no number");
    return static_cast<std::uint32_t>(*number);
}

/// The day of the rates of that number.
inline Date DayOf(std::uint32_t number) {
    return AddDays({2000, 1, 1}, number);
}

/// A server that answers with one page.
class CPageSession : public IHttpSession {
public:
    std::string page;

    HttpAnswer Post(const HttpPost& /*post*/, IHttpObserver* /*observer*/) override {
        return {std::make_unique<CReply>(page), kHttpNoFailure};
    }

private:
    class CReply : public IHttpReply {
    public:
        explicit CReply(std::string page) : m_page(std::move(page)) {}
        int Status() const override { return 200; }
        const std::string& RawHeaders() const override { return m_headers; }
        std::optional<std::size_t> Read(char* buffer, std::size_t size) override {
            const std::size_t count = m_page.copy(buffer, size);
            m_page.erase(0, count);
            return count;
        }
        HttpFailure Failure() const override { return kHttpNoFailure; }

    private:
        const std::string m_headers =
            "HTTP/1.1 200 OK\r\nsessionId: s1.\r\nServerMSG: 1005\r\nContent-Type: text/plain\r\nnewsid: 7\r\n\r\n";
        std::string m_page;
    };
};

struct DevicePorts {
    IFileSystem& files;
    IRegistry& registry;
    IObjectStore& objects;
    CFixedClock& clock;  ///< of the store
    std::filesystem::path root;
};

/// All that a person's device keeps, opened anew, and the changes of it through the code that the programs use. Each
/// change carries a number, the next one of its kind, in several places that belong together; each `Read...` finds it
/// there, and throws when the places disagree or something else is broken. `root` holds the data files and
/// "Module.dll".
class CDevice {
public:
    explicit CDevice(const DevicePorts& ports) : m_ports(ports), m_root(ports.root), m_files(ports.files) {
        m_connections.networks = {{kNetworkInternet, u"net", {true}}};
        m_connections.probe = kNetworkInternet;
        m_boxes.always = BoxAnswer::kYes;
        Must(m_lists.Finish().state != CityListChange::kNotSaved, "an unfinished change of the cities");
        m_cities.EnsureCreated();
        m_rates = LoadRatesList(m_files, m_root);
        Must(m_currencies.EnsureCreated(m_rates) && m_units.Open(), "the databases");
    }

    /// Two values in one step.
    bool ChangeSettings(std::uint32_t number) {
        return m_ports.registry.Exchange(
            RootOf(kKey), kKey, {},
            std::vector<RegistryAssignment>{{u"one", TextValue(Text(number))}, {u"two", TextValue(Text(number))}});
    }
    std::uint32_t ReadSettings() {
        const std::u16string one = m_settings.ReadString(RootOf(kKey), kKey, u"one");
        Must(one == m_settings.ReadString(RootOf(kKey), kKey, u"two"), "two values written in one step differ");
        return one.empty() ? 0 : NumberIn(one);
    }

    bool ChangePacking(std::uint32_t number) {
        CPackingStore store(m_files, m_root);
        CPackingLists lists = store.Load();
        while (lists.Categories().size() > 1)
            lists.DeleteCategory(1);
        lists.AddCategory(Text(number));
        for (std::uint32_t item = 0; item < 50; ++item)
            lists.AddItem({1, 0}, Text(number + item));
        return store.Save(lists) == PackingSave::kSaved;
    }
    std::uint32_t ReadPacking() {
        const auto bytes = m_files.ReadFile(m_root / "pack.dat", 1 << 20);
        if (!bytes || bytes->empty()) return 0;
        const PackingFile file = ReadPackingFile(*bytes);
        Must(!file.lossy && file.lists.Categories().size() == 2, "the packing list");
        const PackingCategory& category = file.lists.Categories()[1];
        Must(category.lists[0].items.size() == 50, "items of the packing list");
        return NumberIn(category.name);
    }

    bool ChangeSkin(std::uint32_t number) {
        auto draft = CSkinDraft::Open(m_files, m_root / "default.skn", true);
        if (!draft) return false;
        draft->Edit().SetColour(SkinKey::kMapSHADCLR, number);
        draft->Edit().SetColour(SkinKey::kGeneralPC, number);
        return draft->Save().status == SkinWriteStatus::kWritten;
    }
    std::uint32_t ReadSkin() {
        const std::u16string shadow = ValueOfSkin(SkinKey::kMapSHADCLR);
        Must(shadow == ValueOfSkin(SkinKey::kGeneralPC), "two colours of the skin differ");
        return NumberIn(shadow);
    }
    std::u16string ValueOfSkin(SkinKey key) {
        const auto draft = CSkinDraft::Open(m_files, m_root / "default.skn", true);
        Must(draft.has_value(), "the skin");
        return draft->Original().Value(key);
    }

    /// The home city, and the one that a reminder is bound to, get the number for their name; another city comes and
    /// goes in front, so that all indexes move.
    bool ChangeCities(std::uint32_t number) {
        const std::u16string before = HomePlace();
        const auto edit = [&](CityList& list, std::vector<CityRename>& renames) {
            const auto home = std::ranges::find(list.cities, before, &CityFields::Place);
            Must(home != list.cities.end(), "the home city is not in the file");
            home->name = Text(number);
            renames.push_back({before, home->Place()});
            const auto front = std::ranges::find(list.cities, kFront, &CityFields::name);
            if (front != list.cities.end()) {
                list.cities.erase(front);
            } else {
                list.cities.push_back(list.cities.back());
                list.cities.back().name = kFront;
            }
            return true;
        };
        return m_lists.Change(edit).state == CityListChange::kDone;
    }
    std::u16string HomePlace() {
        return m_cities.GetPlace(m_settings.ReadDword(RootOf(keys::kWorldClock), keys::kWorldClock, names::kHomeClock));
    }
    void Prepare() {
        if (!m_settings.ReadString(RootOf(keys::kAlarms), keys::kAlarms, names::kAlarmCities[0]).empty()) return;
        ChangeSkin(0);
        ChangeRates(0);
        m_settings.WriteDword(RootOf(keys::kWorldClock), keys::kWorldClock, names::kHomeClock,
                              static_cast<std::uint32_t>(m_cities.Count() / 2));
        ChangeCities(1);
        m_settings.WriteString(RootOf(keys::kAlarms), keys::kAlarms, names::kAlarmCities[0], HomePlace());
    }
    std::uint32_t ReadCities() {
        const auto list = ReadCityList(m_files, m_root / "cities.lst");
        Must(list && list->cities.size() == m_cities.Count(), "the file and the database of cities differ");
        const std::u16string place = HomePlace();
        Must(std::ranges::count(list->cities, place, &CityFields::Place) == 1, "the home city is not in the file");
        Must(place == m_settings.ReadString(RootOf(keys::kAlarms), keys::kAlarms, names::kAlarmCities[0]),
             "the reminder is bound to another city");
        return NumberIn(place.substr(0, place.find(u':')));
    }

    /// The module of that number is installed; now and then the list keeps the last one alone.
    bool ChangeLanguages(std::uint32_t number) {
        const std::u16string module = u"Roamly" + Text(number) + u".dll";
        if (number % 20 == 0) {
            const auto list = BuiltInLanguageList(m_texts).With(u"Roamly" + Text(number - 1) + u".dll");
            if (!m_files.WriteFile(LanguageListFile(m_folder), list->Bytes())) return false;
            for (std::uint32_t old = std::max(number, 60U) - 60; old + 21 < number; ++old)
                m_files.RemoveFile(m_root / "LangsRes" / ToUtf8(u"Roamly" + Text(old) + u".dll"));
        }
        const std::filesystem::path card = m_root / "card";
        if (!m_files.CreateFolder(card) || !m_files.CopyFile(m_root / "Module.dll", card / ToUtf8(module)))
            return false;
        const InstallOutcome outcome = InstallLanguage(m_files, m_folder, m_texts, {card, module, true, {}});
        return outcome == InstallOutcome::kInstalled || outcome == InstallOutcome::kNotRemoved;
    }
    std::uint32_t ReadLanguages() {
        std::uint32_t last = 0;
        for (const Language& language : ReadLanguageListAsItIs(m_files, m_folder).Languages()) {
            if (language.module == kBuiltInModule) continue;
            const auto bytes = m_files.ReadFile(m_root / "LangsRes" / ToUtf8(language.module), 1 << 22);
            Must(bytes && CResources::FromModule(*bytes).has_value(), "a module of the list");
            if (language.name.find_first_not_of(u"0123456789") == std::u16string::npos) last = NumberIn(language.name);
        }
        return last;
    }

    /// All rates of one reply, and the day on which they came.
    bool ChangeRates(std::uint32_t number) {
        std::u16string reply;
        for (std::size_t i = 0; i < kRates; ++i)
            reply += m_rates[i].code + u"_" + Text(number) + u"#";
        m_http.page = Narrow(reply);
        m_ports.clock.Set({DayOf(number), 12});
        const FeedPorts feed{m_http, m_connections, m_ports.registry, m_boxes, m_texts};
        CRatesUpdate update(feed, m_ports.objects, m_rates);
        return update.Update(m_currencies, u"http://127.0.0.1/feed", u"did=a", {}).stored;
    }
    std::uint32_t ReadRates() {
        const CurrencyList all = m_currencies.All();
        Must(all.size() == m_rates.size() && all.size() >= kRates, "currencies are missing");
        std::u16string first;
        for (const CurrencyEntry& entry : all) {
            const bool changed = std::any_of(m_rates.begin(), m_rates.begin() + kRates,
                                             [&](const CurrencyEntry& each) { return each.code == entry.code; });
            if (changed && first.empty()) first = entry.rate;
            Must(!changed || entry.rate == first, "rates of one reply differ");
        }
        const RatesOrigin origin = OriginOfRates(m_ports.registry, std::nullopt);
        Must(origin.date == DayOf(NumberIn(first)), "the rates are of another day than is told");
        return NumberIn(first);
    }

    bool ChangeUnits(std::uint32_t number) {
        if (m_units.Add(kUnits, u"fault " + Text(number), Text(number)) != UnitChange::kDone) return false;
        m_units.Delete(kUnits, u"fault " + Text(number - 1));
        return true;
    }
    std::uint32_t ReadUnits() {
        std::uint32_t last = 0;
        std::size_t others = 0;
        for (const UnitRecord& unit : m_units.ReadAll()) {
            if (!unit.name.starts_with(u"fault ")) {
                ++others;
                continue;
            }
            Must(unit.name == u"fault " + unit.factor, "a unit and its factor differ");
            last = std::max(last, NumberIn(unit.factor));
        }
        Must(others > 100, "units are missing");
        return last;
    }

private:
    const DevicePorts m_ports;
    const std::filesystem::path m_root;
    IFileSystem& m_files;
    const CResources m_texts;
    CScriptedMessageBoxes m_boxes;
    CPageSession m_http;
    CFakeConnectionManager m_connections;
    CRegistryStore m_settings{m_ports.registry};
    CApplicationFolder m_folder{m_files, m_root};
    CCityDatabase m_cities{m_ports.objects, m_files, m_boxes, m_texts, m_root / "cities.lst"};
    CCityListStore m_lists{m_ports.objects, m_ports.registry, m_files, m_cities, m_root / "cities.lst"};
    CurrencyList m_rates;
    CCurrencyDatabase m_currencies{m_ports.objects};
    CUnitDatabase m_units{m_ports.objects};
};

struct Kind {
    const char* name;
    bool (CDevice::*change)(std::uint32_t number);
    std::uint32_t (CDevice::*read)();
};

inline constexpr Kind kKinds[] = {
    {"settings", &CDevice::ChangeSettings, &CDevice::ReadSettings},
    {"packing", &CDevice::ChangePacking, &CDevice::ReadPacking},
    {"skin", &CDevice::ChangeSkin, &CDevice::ReadSkin},
    {"cities", &CDevice::ChangeCities, &CDevice::ReadCities},
    {"languages", &CDevice::ChangeLanguages, &CDevice::ReadLanguages},
    {"rates", &CDevice::ChangeRates, &CDevice::ReadRates},
    {"units", &CDevice::ChangeUnits, &CDevice::ReadUnits},
};

}  // namespace rlx::test
