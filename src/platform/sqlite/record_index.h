#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/object_store.h"

namespace rlx {

/// The records of one database in one sort order. A plain value.
class CRecordIndex {
public:
    /// Collects records, given in the order in which they were added, then sorts them.
    class CBuilder {
    public:
        /// `key` as `EncodeText` makes it.
        void Add(RecordId record, std::string_view key);
        CRecordIndex Finish();

    private:
        struct Entry {
            std::size_t keyAt = 0;
            std::size_t keySize = 0;
            RecordId record = 0;
        };
        std::string m_keys;
        std::vector<Entry> m_entries;
    };

    std::size_t Count() const { return m_order.size(); }

    std::optional<RecordId> At(std::size_t position) const;

    /// Logarithmic.
    std::optional<std::size_t> PositionOf(RecordId record) const;

private:
    struct Place {
        RecordId record = 0;
        std::size_t position = 0;
    };
    std::vector<RecordId> m_order;
    mutable std::vector<Place> m_places;  ///< ordered by record; made when first asked for
};

}  // namespace rlx
