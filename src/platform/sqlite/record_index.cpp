#include "platform/sqlite/record_index.h"

#include <algorithm>

namespace rlx {

void CRecordIndex::CBuilder::Add(RecordId record, std::string_view key) {
    m_entries.push_back({m_keys.size(), key.size(), record});
    m_keys.append(key);
}

CRecordIndex CRecordIndex::CBuilder::Finish() {
    const auto key = [this](const Entry& e) { return std::string_view(m_keys).substr(e.keyAt, e.keySize); };
    const auto before = [&key](const Entry& a, const Entry& b) { return key(a) < key(b); };
    // Most databases are made in their order, and asking is quicker than sorting.
    if (!std::is_sorted(m_entries.begin(), m_entries.end(), before))
        std::stable_sort(m_entries.begin(), m_entries.end(), before);
    CRecordIndex index;
    index.m_order.reserve(m_entries.size());
    for (const Entry& entry : m_entries)
        index.m_order.push_back(entry.record);
    return index;
}

std::optional<RecordId> CRecordIndex::At(std::size_t position) const {
    if (position >= m_order.size()) return std::nullopt;
    return m_order[position];
}

std::optional<std::size_t> CRecordIndex::PositionOf(RecordId record) const {
    const auto less = [](const Place& a, const Place& b) { return a.record < b.record; };
    if (m_places.size() != m_order.size()) {
        m_places.clear();
        for (std::size_t i = 0; i < m_order.size(); ++i)
            m_places.push_back({m_order[i], i});
        std::sort(m_places.begin(), m_places.end(), less);
    }
    const auto found = std::lower_bound(m_places.begin(), m_places.end(), Place{record, 0}, less);
    if (found == m_places.end() || found->record != record) return std::nullopt;
    return found->position;
}

}  // namespace rlx
