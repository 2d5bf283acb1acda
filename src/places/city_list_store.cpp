#include "places/city_list_store.h"

#include <utility>

#include "base/text.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr auto kKey = keys::kWorldClock;

}  // namespace

bool IsCityChangeUnfinished(CRegistryStore& settings) {
    settings.ReadString(RootOf(kKey), kKey, names::kCityMoves);
    return settings.Status() == ReadStatus::kRead;
}

CCityListStore::CCityListStore(IObjectStore& store, IRegistry& registry, IFileSystem& files, CCityDatabase& cities,
                               std::filesystem::path cityFile)
    : m_store(store),
      m_registry(registry),
      m_settings(registry),
      m_files(files),
      m_cities(cities),
      m_cityFile(std::move(cityFile)),
      m_former(m_cityFile.native() + ".old") {}

CityListResult CCityListStore::Change(const Edit& edit) {
    CityListResult result = Finish();
    // The choices must be known by the old list before the new one is there.
    if (m_cities.EnsureCreated() != CityListState::kReady) return {CityListChange::kNotRead, result.gone};
    const auto before = m_files.ReadFile(m_cityFile, kMaxCityFile);
    if (!before) return {CityListChange::kNotRead, result.gone};
    CityList list = ParseCityList(*before);
    std::vector<CityRename> renames;
    if (!edit(list, renames)) return {CityListChange::kNothing, result.gone};
    const auto after = CityListBytes(list);
    if (!after) return {CityListChange::kNotWritable, result.gone};
    const bool done = m_files.CopyFile(m_cityFile, m_former) && Replace(*after, renames, result.gone);
    m_files.RemoveFile(m_former);
    return {done ? CityListChange::kDone : CityListChange::kNotSaved, result.gone};
}

/// Where the new file went through but the store refuses, the disk is full most likely: the former file is put back
/// without a byte written. Without that the note stays, and who finds it makes the store fit the new file.
bool CCityListStore::Replace(std::string_view after, const std::vector<CityRename>& renames,
                             std::vector<std::u16string>& gone) {
    if (Begin(renames) && m_files.WriteFile(m_cityFile, after)) {
        if (Rebuild(renames, gone)) return true;
        if (!m_files.MoveFile(m_former, m_cityFile)) return false;
    }
    RemoveNote();
    return false;
}

CityListResult CCityListStore::Finish() {
    if (!IsCityChangeUnfinished(m_settings)) return {CityListChange::kNothing, {}};
    if (!m_files.IsFile(m_cityFile)) return {CityListChange::kNotRead, {}};
    CityListResult result;
    if (!Rebuild(Renames(), result.gone)) return {CityListChange::kNotSaved, {}};
    m_files.RemoveFile(m_former);
    return result;
}

/// A place holds no ";": that ends the fields of the file.
bool CCityListStore::Begin(const std::vector<CityRename>& renames) {
    std::u16string note;
    for (const CityRename& rename : renames)
        note.append(rename.from).append(u";").append(rename.to).append(u";");
    return m_settings.WriteString(RootOf(kKey), kKey, names::kCityMoves, note);
}

std::vector<CityRename> CCityListStore::Renames() {
    const auto places = Split(m_settings.ReadString(RootOf(kKey), kKey, names::kCityMoves), u';');
    std::vector<CityRename> renames;
    for (std::size_t i = 0; i + 1 < places.size(); i += 2)
        renames.push_back({places[i], places[i + 1]});
    return renames;
}

bool CCityListStore::Rebuild(const std::vector<CityRename>& renames, std::vector<std::u16string>& gone) {
    return m_store.Transact([&] {
        CCityChoices choices(m_cities, m_settings);
        choices.Remember(renames);
        if (m_cities.Rebuild() != CityListState::kReady || !choices.Restore()) return false;
        if (!RemoveNote()) return false;
        gone.insert(gone.end(), choices.Gone().begin(), choices.Gone().end());
        return true;
    });
}

bool CCityListStore::RemoveNote() {
    return m_registry.Remove(RootOf(kKey), kKey, names::kCityMoves);
}

}  // namespace rlx
