#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/object_store.h"
#include "tools/converter/unit_tables.h"

namespace rlx {

inline constexpr PropertyId PROP_UNIT_CATEGORY = 301;
inline constexpr PropertyId PROP_UNIT_NAME = 302;
inline constexpr PropertyId PROP_UNIT_FACTOR = 303;

enum class UnitChange {
    kDone,
    kEmptyName,     ///< nothing but blanks
    kNotEditable,   ///< temperatures, or no such category
    kExists,        ///< the category has a unit of that name, case ignored
    kCategoryFull,  ///< `kMaxUnits` are there
    kNotFound,      ///< no unit of exactly that name
    kNotSaved,      ///< the device refused the write
};

/// The units of all categories in the record database "rlxConverters". Does not own the store; one thread.
class CUnitDatabase {
public:
    explicit CUnitDatabase(IObjectStore& store);

    /// Opens the database; one that is missing or has no rows is made and filled with the seed units in one step.
    /// False when the device refuses: all lists are then empty.
    bool Open();

    /// All rows in the order of the database: by category, within one as they were written.
    std::vector<UnitRecord> ReadAll();

    UnitTables ReadTables() { return TablesFromRows(ReadAll()); }

    /// `factor` is kept exactly as typed, number or not.
    UnitChange Add(std::size_t category, std::u16string_view name, std::u16string_view factor);

    /// Deletes the first unit of the category whose name is exactly `name`.
    UnitChange Delete(std::size_t category, std::u16string_view name);

private:
    bool Seed();
    UnitChange TryAdd(std::size_t category, std::u16string_view name, std::u16string_view factor);
    std::optional<RecordId> Find(std::size_t category, std::u16string_view name);

    IObjectStore& m_store;
    std::unique_ptr<IRecordDatabase> m_database;
};

}  // namespace rlx
