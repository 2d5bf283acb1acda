#include "cli/session.h"

#include <cstdlib>

#include "base/number.h"
#include "base/text.h"
#include "cli/text_ids.h"
#include "places/city_list_messages.h"
#include "places/city_search.h"
#include "platform/posix/frozen_clock.h"
#include "platform/posix/image_module.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/system_clock.h"
#include "shell/boxes.h"
#include "shell/fill_text.h"
#include "shell/language_start.h"
#include "shell/program_paths.h"
#include "shell/store_message.h"
#include "shell/text_ids.h"

namespace rlx::cli {

namespace {

constexpr std::size_t kMostCitiesNamed = 10;

/// The exit status of a command that could not do what it was asked.
constexpr int kFailedStatus = 1;

}  // namespace

struct CSession::Parts {
    explicit Parts(const GlobalOptions& options) : clock(systemClock, options.now, options.bias) {}

    CPosixFileSystem files;
    std::optional<CImageModule> images;
    CSystemClock systemClock;
    CFrozenClock clock;
    std::optional<CApplicationFolder> folder;
    std::unique_ptr<CDeviceStore> store;
    StoreOutcome outcome = StoreOutcome::kOpened;
    std::optional<std::u16string> storeTrouble;
    std::optional<CRegistryStore> settings;
    std::optional<ClockSettings> clockChoices;
    std::optional<CCityDatabase> cities;
    std::optional<CCityListStore> cityLists;
    bool citiesBuilt = false;
    std::optional<CCityTimes> times;
};

CSession::CSession(GlobalOptions options)
    : m_options(std::move(options)),
      m_boxes(m_options.answer, m_options.json),
      m_texts([this] { return LoadLanguage(); }),
      m_parts(std::make_unique<Parts>(m_options)) {}

CSession::~CSession() = default;

IFileSystem& CSession::Files() {
    return m_parts->files;
}

const IImageCodec& CSession::Images() {
    if (!m_parts->images) m_parts->images.emplace(ProgramFolders({}).executableFolder);
    return *m_parts->images;
}

const IClock& CSession::Clock() {
    return m_parts->clock;
}

const CApplicationFolder& CSession::Folder() {
    if (!m_parts->folder) {
        const FolderSources sources = ProgramFolders(m_options.home);
        auto folder = PrepareApplicationFolder(m_parts->files, sources);
        if (!folder) {
            // Never another folder in its stead: its cities would stay in the store.
            folder = FindApplicationFolder(m_parts->files, sources).folder;
            Fail(Text(kTextFolderNotReady, FromUtf8(folder->string())));
        }
        m_parts->folder.emplace(m_parts->files, *folder);
    }
    return *m_parts->folder;
}

CDeviceStore& CSession::Store() {
    if (!m_parts->store) {
        const std::filesystem::path file = DeviceStoreFile(m_options.store);
        OpenedStore opened = OpenDeviceStore(file, m_parts->clock);
        m_parts->store = std::move(opened.store);
        m_parts->outcome = opened.outcome;
        if (const auto box = StoreMessage(opened.outcome, file, opened.movedAside, m_texts)) {
            m_parts->storeTrouble = box->text;
            m_boxes.Show(*box);
        }
    }
    return *m_parts->store;
}

/// The setting alone is no reason to make a store.
CResources CSession::LoadLanguage() {
    std::error_code error;
    if (!m_parts->store && !std::filesystem::exists(DeviceStoreFile(m_options.store), error)) return {};
    const auto lang = LanguageSetting(Settings());
    if (lang.value_or(0) == 0) return {};
    LanguageStart start = StartLanguage(Files(), Folder(), lang);
    if (start.state == LanguageState::kFailed) m_boxes.Show(ErrorBox(m_texts, m_texts.Text(kTextLanguageNotLoaded)));
    if (start.state == LanguageState::kModule) m_languageModule = start.module;
    return std::move(start.resources);
}

const std::u16string& CSession::LanguageModule() {
    m_texts.Text(kTextLanguage);
    return m_languageModule;
}

IRegistry& CSession::Registry() {
    return Store().Registry();
}

IObjectStore& CSession::ObjectStore() {
    return Store().Objects();
}

CRegistryStore& CSession::Settings() {
    if (!m_parts->settings) {
        m_parts->settings.emplace(Registry());
        // Choices of cities mean nothing before a change of the list that was cut short is ended.
        if (IsCityChangeUnfinished(*m_parts->settings)) CitiesAsTheyAre();
    }
    return *m_parts->settings;
}

const ClockSettings& CSession::ClockChoices() {
    if (!m_parts->clockChoices) m_parts->clockChoices = LoadClockSettings(Settings());
    return *m_parts->clockChoices;
}

bool CSession::KeepsChanges() {
    Store();
    const StoreOutcome outcome = m_parts->outcome;
    return outcome == StoreOutcome::kOpened || outcome == StoreOutcome::kCreated || outcome == StoreOutcome::kReplaced;
}

std::optional<std::u16string> CSession::StoreTrouble() {
    Store();
    return m_parts->storeTrouble;
}

bool CSession::IsStoreSound() {
    return Store().IsSound();
}

CCityDatabase& CSession::Cities() {
    CCityDatabase& cities = CitiesAsTheyAre();
    if (!m_parts->citiesBuilt && cities.EnsureCreated() == CityListState::kNotWritten)
        Fail(Text(kTextFileNotSaved, u"rlxCities"));
    m_parts->citiesBuilt = true;
    return cities;
}

CCityDatabase& CSession::CitiesAsTheyAre() {
    if (!m_parts->cities) {
        const auto file = Folder().Path(u"\\cities.lst").value_or(Folder().Root() / "cities.lst");
        m_parts->cities.emplace(ObjectStore(), m_parts->files, m_boxes, m_texts, file);
        m_parts->cityLists.emplace(ObjectStore(), Registry(), m_parts->files, *m_parts->cities, file);
        ReportCityList(m_parts->cityLists->Finish(), m_boxes, m_texts);
    }
    return *m_parts->cities;
}

CCityListStore& CSession::CityLists() {
    CitiesAsTheyAre();
    return *m_parts->cityLists;
}

CCityTimes& CSession::Times() {
    if (!m_parts->times) m_parts->times.emplace(Cities(), m_parts->clock, m_texts, ClockChoices());
    return *m_parts->times;
}

int CSession::Fail(const std::u16string& text) {
    m_boxes.Show({m_texts.Text(kTextError), text, BoxIcon::kExclamation, BoxButtons::kOk});
    return kFailedStatus;
}

std::u16string CSession::Text(int id, const std::u16string& first, const std::u16string& second) const {
    return FillText(m_texts.Text(id), {first, second});
}

std::optional<CityIndex> FindCity(CSession& session, const std::string& word) {
    CCityDatabase& cities = session.Cities();
    const std::u16string text = FromUtf8(word);
    if (const auto index = ParseWholeInteger(text, 0, 0xFFFFFFFF)) {
        const auto city = static_cast<CityIndex>(*index);
        if (city < cities.Count()) return city;
        session.Fail(session.Text(kTextNoSuchCity, text));
        return std::nullopt;
    }
    const std::vector<CityIndex> found = CCitySearch(cities).FindByBeginning(text);
    if (found.size() == 1) return found.front();
    if (found.empty()) {
        session.Fail(session.Text(kTextNoSuchCity, text));
        return std::nullopt;
    }
    std::u16string names;
    for (std::size_t i = 0; i < found.size() && i < kMostCitiesNamed; ++i) {
        names.append(u"\n").append(FormatInteger(found[i])).append(u" ").append(cities.GetPlace(found[i]));
    }
    session.Fail(session.Text(kTextSeveralCities, text, FormatInteger(static_cast<std::int64_t>(found.size()))) +
                 names);
    return std::nullopt;
}

}  // namespace rlx::cli
