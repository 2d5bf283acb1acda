#include "platform/fake/memory_record_database.h"

#include <algorithm>

namespace rlx {

/// The record ids in the sort order; empty when there is no such order.
const std::vector<RecordId>& CMemoryRecordDatabase::Order(PropertyId sortProperty) {
    if (m_version != m_store.m_version) m_orders.clear();
    m_version = m_store.m_version;
    const auto [place, isNew] = m_orders.try_emplace(sortProperty);
    const auto* database = m_store.Find(m_name);
    if (!isNew || database == nullptr) return place->second;
    const auto& orders = database->sortOrders;
    if (std::find(orders.begin(), orders.end(), sortProperty) == orders.end()) return place->second;
    std::vector<std::pair<std::u16string, RecordId>> keys;
    for (const auto& [id, record] : database->records)
        keys.emplace_back(PropertyText(record, sortProperty), id);
    std::sort(keys.begin(), keys.end());  // ids grow, so equal texts keep the order in which they came
    for (const auto& key : keys)
        place->second.push_back(key.second);
    return place->second;
}

std::size_t CMemoryRecordDatabase::Count() {
    const auto* database = m_store.Find(m_name);
    return database == nullptr ? 0 : database->records.size();
}

std::optional<RecordId> CMemoryRecordDatabase::SeekPosition(PropertyId sortProperty, std::size_t position) {
    const auto& order = Order(sortProperty);
    if (position >= order.size()) return std::nullopt;
    return order[position];
}

std::optional<RecordId> CMemoryRecordDatabase::SeekValue(PropertyId sortProperty, std::u16string_view value) {
    for (const RecordId id : Order(sortProperty)) {
        if (PropertyText(*Read(id), sortProperty) == value) return id;
    }
    return std::nullopt;
}

std::optional<std::size_t> CMemoryRecordDatabase::PositionOf(PropertyId sortProperty, RecordId record) {
    const auto& order = Order(sortProperty);
    const auto found = std::find(order.begin(), order.end(), record);
    if (found == order.end()) return std::nullopt;
    return static_cast<std::size_t>(found - order.begin());
}

std::optional<Record> CMemoryRecordDatabase::Read(RecordId record) {
    const auto* database = m_store.Find(m_name);
    if (database == nullptr) return std::nullopt;
    const auto found = database->records.find(record);
    if (found == database->records.end()) return std::nullopt;
    return found->second;
}

std::optional<RecordId> CMemoryRecordDatabase::Add(const Record& record) {
    auto* database = m_store.Find(m_name);
    if (database == nullptr || !m_store.TakeWrite()) return std::nullopt;
    const RecordId id = m_store.m_state.nextId++;
    database->records[id] = record;
    database->lastModified = m_store.m_state.now;
    return id;
}

bool CMemoryRecordDatabase::Overwrite(RecordId record, const Record& properties) {
    auto* database = m_store.Find(m_name);
    if (database == nullptr || database->records.count(record) == 0 || !m_store.TakeWrite()) return false;
    database->records[record] = properties;
    database->lastModified = m_store.m_state.now;
    return true;
}

bool CMemoryRecordDatabase::Delete(RecordId record) {
    auto* database = m_store.Find(m_name);
    if (database == nullptr || database->records.count(record) == 0 || !m_store.TakeWrite()) return false;
    database->records.erase(record);
    database->lastModified = m_store.m_state.now;
    return true;
}

std::optional<std::int64_t> CMemoryRecordDatabase::LastModified() {
    const auto* database = m_store.Find(m_name);
    if (database == nullptr) return std::nullopt;
    return database->lastModified;
}

}  // namespace rlx
