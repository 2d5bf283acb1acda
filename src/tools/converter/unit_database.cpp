#include "tools/converter/unit_database.h"

#include <algorithm>

#include "base/text.h"

namespace rlx {

namespace {

constexpr std::u16string_view kName = u"rlxConverters";
constexpr std::uint32_t kTypeId = 56789;

Record RecordOf(std::size_t category, std::u16string_view name, std::u16string_view factor) {
    return {{PROP_UNIT_CATEGORY, CategoryCode(category)},
            {PROP_UNIT_NAME, std::u16string(name)},
            {PROP_UNIT_FACTOR, std::u16string(factor)}};
}

bool IsEditable(std::size_t category) {
    return std::ranges::find(kEditableCategories, category) != kEditableCategories.end();
}

}  // namespace

CUnitDatabase::CUnitDatabase(IObjectStore& store) : m_store(store) {}

bool CUnitDatabase::Open() {
    m_database = m_store.Open(kName);
    if (m_database && m_database->Count() > 0) return true;
    m_database.reset();
    const bool seeded = m_store.Transact([this] { return Seed(); });
    m_database = m_store.Open(kName);
    return seeded && m_database;
}

bool CUnitDatabase::Seed() {
    if (!m_store.Create(kName, kTypeId, {PROP_UNIT_CATEGORY})) return false;
    const std::unique_ptr<IRecordDatabase> database = m_store.Open(kName);
    if (!database) return false;
    // Another process may have filled it while this one waited for its turn.
    if (database->Count() > 0) return true;
    for (std::size_t category = 0; category < kCategoryCount; ++category) {
        for (const SeedUnit& unit : SeedUnits(category)) {
            if (!database->Add(RecordOf(category, unit.name, unit.factor))) return false;
        }
    }
    return true;
}

std::vector<UnitRecord> CUnitDatabase::ReadAll() {
    std::vector<UnitRecord> rows;
    if (!m_database) return rows;
    for (const Record& record : m_database->Records(PROP_UNIT_CATEGORY)) {
        rows.push_back({PropertyText(record, PROP_UNIT_CATEGORY), PropertyText(record, PROP_UNIT_NAME),
                        PropertyText(record, PROP_UNIT_FACTOR)});
    }
    return rows;
}

UnitChange CUnitDatabase::Add(std::size_t category, std::u16string_view name, std::u16string_view factor) {
    if (!IsEditable(category)) return UnitChange::kNotEditable;
    if (Trim(name).empty()) return UnitChange::kEmptyName;
    if (!m_database) return UnitChange::kNotSaved;
    UnitChange change = UnitChange::kNotSaved;
    const bool saved = m_store.Transact([&] {
        change = TryAdd(category, name, factor);
        return change == UnitChange::kDone;
    });
    return change == UnitChange::kDone && !saved ? UnitChange::kNotSaved : change;
}

UnitChange CUnitDatabase::TryAdd(std::size_t category, std::u16string_view name, std::u16string_view factor) {
    std::size_t count = 0;
    for (const UnitRecord& row : ReadAll()) {
        if (row.code != CategoryCode(category)) continue;
        if (EqualIgnoringCase(row.name, name)) return UnitChange::kExists;
        ++count;
    }
    if (count >= kMaxUnits) return UnitChange::kCategoryFull;
    return m_database->Add(RecordOf(category, name, factor)) ? UnitChange::kDone : UnitChange::kNotSaved;
}

UnitChange CUnitDatabase::Delete(std::size_t category, std::u16string_view name) {
    if (!IsEditable(category)) return UnitChange::kNotEditable;
    if (!m_database) return UnitChange::kNotSaved;
    UnitChange change = UnitChange::kNotFound;
    const bool saved = m_store.Transact([&] {
        const std::optional<RecordId> id = Find(category, name);
        if (!id) return false;
        change = m_database->Delete(*id) ? UnitChange::kDone : UnitChange::kNotSaved;
        return change == UnitChange::kDone;
    });
    return change == UnitChange::kDone && !saved ? UnitChange::kNotSaved : change;
}

std::optional<RecordId> CUnitDatabase::Find(std::size_t category, std::u16string_view name) {
    const std::u16string code = CategoryCode(category);
    const std::optional<RecordId> first = m_database->SeekValue(PROP_UNIT_CATEGORY, code);
    if (!first) return std::nullopt;
    std::optional<std::size_t> at = m_database->PositionOf(PROP_UNIT_CATEGORY, *first);
    while (at) {
        const std::optional<RecordId> id = m_database->SeekPosition(PROP_UNIT_CATEGORY, (*at)++);
        const std::optional<Record> record = id ? m_database->Read(*id) : std::nullopt;
        if (!record || PropertyText(*record, PROP_UNIT_CATEGORY) != code) return std::nullopt;
        if (PropertyText(*record, PROP_UNIT_NAME) == name) return id;
    }
    return std::nullopt;
}

}  // namespace rlx
