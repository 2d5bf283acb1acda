#pragma once

#include <map>
#include <string>

#include "platform/fake/memory_object_store.h"

namespace rlx {

/// A handle on a database of a `CMemoryObjectStore`, found by its name at each call.
class CMemoryRecordDatabase : public IRecordDatabase {
public:
    CMemoryRecordDatabase(CMemoryObjectStore& store, std::u16string_view name) : m_store(store), m_name(name) {}

    std::size_t Count() override;
    std::optional<RecordId> SeekPosition(PropertyId sortProperty, std::size_t position) override;
    std::optional<RecordId> SeekValue(PropertyId sortProperty, std::u16string_view value) override;
    std::optional<std::size_t> PositionOf(PropertyId sortProperty, RecordId record) override;
    std::optional<Record> Read(RecordId record) override;
    std::optional<RecordId> Add(const Record& record) override;
    bool Overwrite(RecordId record, const Record& properties) override;
    bool Delete(RecordId record) override;
    std::optional<std::int64_t> LastModified() override;

private:
    const std::vector<RecordId>& Order(PropertyId sortProperty);

    CMemoryObjectStore& m_store;
    const std::u16string m_name;
    std::map<PropertyId, std::vector<RecordId>> m_orders;  ///< of the version below
    std::uint64_t m_version = 0;
};

}  // namespace rlx
