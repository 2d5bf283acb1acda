#include "places/city_editor.h"

#include <algorithm>
#include <utility>

#include "places/text_ids.h"
#include "shell/fill_text.h"

namespace rlx {

namespace {

bool IsThere(const CityList& list, const CityFields& city) {
    return std::ranges::find(list.cities, city.Place(), &CityFields::Place) != list.cities.end();
}

/// Before the first city that sorts behind it; the database sorts alike.
void Insert(CityList& list, CityFields city) {
    const std::u16string place = city.Place();
    const auto at = std::ranges::find_if(list.cities, [&](const CityFields& other) { return other.Place() > place; });
    list.cities.insert(at, std::move(city));
}

}  // namespace

CCityEditor::CCityEditor(CCityListStore& lists, IFileSystem& files, std::filesystem::path cityFile, ITimeZones& zones,
                         const ITexts& texts)
    : m_lists(lists), m_files(files), m_cityFile(std::move(cityFile)), m_zones(zones), m_texts(texts) {}

std::optional<CityFields> CCityEditor::Find(std::u16string_view place) {
    const auto list = ReadCityList(m_files, m_cityFile);
    if (!list) return std::nullopt;
    const auto found = std::ranges::find(list->cities, place, &CityFields::Place);
    return found == list->cities.end() ? std::nullopt : std::optional(*found);
}

CityFault CCityEditor::Gone(const CityFields& city) const {
    return {CityField::kName, FillText(m_texts.Text(kTextCityGone), {city.name})};
}

CityFault CCityEditor::Exists(const CityFields& city) const {
    return {CityField::kName, FillText(m_texts.Text(kTextCityExists), {city.name + u", " + city.country})};
}

CityEdit CCityEditor::Add(const CCityDraft& draft) {
    const CheckedCity checked = CheckCity(draft, nullptr, m_zones, m_texts);
    CityEdit edit{checked.fault, {}, checked.city.Place()};
    if (edit.fault) return edit;
    edit.list = m_lists.Change([&](CityList& list, std::vector<CityRename>&) {
        if (IsThere(list, checked.city)) edit.fault = Exists(checked.city);
        if (!edit.fault) Insert(list, checked.city);
        return !edit.fault;
    });
    return edit;
}

CityEdit CCityEditor::Change(const CityFields& before, const CCityDraft& draft) {
    const CheckedCity checked = CheckCity(draft, &before, m_zones, m_texts);
    const CityFields& after = checked.city;
    CityEdit edit{checked.fault, {}, after.Place()};
    if (edit.fault) return edit;
    edit.list = m_lists.Change([&](CityList& list, std::vector<CityRename>& renames) {
        const auto at = std::ranges::find(list.cities, before);
        const bool moves = after.Place() != before.Place();
        if (at == list.cities.end()) edit.fault = Gone(before);
        if (moves && IsThere(list, after)) edit.fault = Exists(after);
        if (edit.fault) return false;
        if (!moves) {
            *at = after;
            return true;
        }
        list.cities.erase(at);
        Insert(list, after);
        renames.push_back({before.Place(), after.Place()});
        return true;
    });
    return edit;
}

CityEdit CCityEditor::Delete(const CityFields& before) {
    CityEdit edit{std::nullopt, {}, before.Place()};
    edit.list = m_lists.Change([&](CityList& list, std::vector<CityRename>&) {
        const auto at = std::ranges::find(list.cities, before);
        if (at == list.cities.end()) edit.fault = Gone(before);
        if (!edit.fault) list.cities.erase(at);
        return !edit.fault;
    });
    return edit;
}

}  // namespace rlx
