#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "places/city_choices.h"
#include "places/city_database.h"
#include "places/city_list.h"
#include "platform/registry.h"

namespace rlx {

/// What became of a change of the city list.
enum class CityListChange {
    kDone,
    kNothing,      ///< the edit changed nothing
    kNotRead,      ///< the city file cannot be read
    kNotWritable,  ///< the list holds what a city file cannot
    kNotSaved,     ///< the file or the device store refused; both are as they were
};

struct CityListResult {
    CityListChange state = CityListChange::kDone;
    std::vector<std::u16string> gone;  ///< "Name, country" of the cities that were chosen and are gone
};

/// True when a change of the list was begun and not ended.
bool IsCityChangeUnfinished(CRegistryStore& settings);

/// Changes "cities.lst" together with the database that is built from it and the settings that hold its cities.
///
/// The file and the device store cannot be written in one step. So the store first takes note that the list changes and
/// which cities are renamed; then the file is replaced, the former one being kept beside it as "cities.lst.old"; then
/// the database, the choices and the note change in one transaction. Until that is done the choices fit the old
/// database; who finds the note at the next start does the rest.
///
/// References must outlive the object, `registry` and `store` are those of one device: registry writes join a
/// transaction of the store. Used from one thread.
class CCityListStore {
public:
    /// Edits the list in place and adds the cities that it renames; false when nothing is to be changed.
    using Edit = std::function<bool(CityList& list, std::vector<CityRename>& renames)>;

    CCityListStore(IObjectStore& store, IRegistry& registry, IFileSystem& files, CCityDatabase& cities,
                   std::filesystem::path cityFile);

    /// Reads the list as it is now, edits it and puts it in force.
    CityListResult Change(const Edit& edit);

    /// Does what is left of a change that was cut short. Reads one setting when there is nothing to do.
    CityListResult Finish();

private:
    bool Replace(std::string_view after, const std::vector<CityRename>& renames, std::vector<std::u16string>& gone);
    bool Begin(const std::vector<CityRename>& renames);
    bool Rebuild(const std::vector<CityRename>& renames, std::vector<std::u16string>& gone);
    std::vector<CityRename> Renames();
    bool RemoveNote();

    IObjectStore& m_store;
    IRegistry& m_registry;
    CRegistryStore m_settings;
    IFileSystem& m_files;
    CCityDatabase& m_cities;
    const std::filesystem::path m_cityFile;
    const std::filesystem::path m_former;  ///< a copy of the file while it is being changed
};

}  // namespace rlx
