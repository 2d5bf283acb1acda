#include "platform/fake/memory_object_store.h"

#include <utility>

#include "platform/fake/memory_record_database.h"

namespace rlx {

bool CMemoryObjectStore::TakeWrite() {
    if (!m_failures.Allows()) return false;
    ++m_version;
    return true;
}

CMemoryObjectStore::Database* CMemoryObjectStore::Find(std::u16string_view name) {
    const auto found = m_state.databases.find(name);
    return found == m_state.databases.end() ? nullptr : &found->second;
}

bool CMemoryObjectStore::Create(std::u16string_view name, std::uint32_t typeId,
                                const std::vector<PropertyId>& sortOrders) {
    if (sortOrders.size() > kMaxSortOrders) return false;
    if (Find(name) != nullptr) return true;
    if (!TakeWrite()) return false;
    m_state.databases[std::u16string(name)] = {typeId, sortOrders, {}, m_state.now};
    return true;
}

std::unique_ptr<IRecordDatabase> CMemoryObjectStore::Open(std::u16string_view name) {
    if (Find(name) == nullptr) return nullptr;
    return std::make_unique<CMemoryRecordDatabase>(*this, name);
}

bool CMemoryObjectStore::Remove(std::u16string_view name) {
    const auto found = m_state.databases.find(name);
    if (found == m_state.databases.end()) return true;
    if (!TakeWrite()) return false;
    m_state.databases.erase(found);
    return true;
}

bool CMemoryObjectStore::Transact(const std::function<bool()>& work) {
    if (m_inTransaction) return work();
    if (m_before) std::exchange(m_before, nullptr)();
    State before = m_state;
    m_inTransaction = true;
    const bool done = work();
    m_inTransaction = false;
    if (!done) {
        m_state = std::move(before);
        ++m_version;
    }
    return done;
}

std::optional<std::uint32_t> CMemoryObjectStore::TypeOf(std::u16string_view name) const {
    const auto found = m_state.databases.find(name);
    if (found == m_state.databases.end()) return std::nullopt;
    return found->second.type;
}

std::vector<PropertyId> CMemoryObjectStore::SortOrdersOf(std::u16string_view name) const {
    const auto found = m_state.databases.find(name);
    return found == m_state.databases.end() ? std::vector<PropertyId>() : found->second.sortOrders;
}

}  // namespace rlx
