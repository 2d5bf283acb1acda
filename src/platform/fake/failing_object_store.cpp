#include "platform/fake/failing_object_store.h"

#include <utility>

namespace rlx {

namespace {

class CFailingRecordDatabase : public IRecordDatabase {
public:
    CFailingRecordDatabase(std::unique_ptr<IRecordDatabase> database, CFailurePlan& writes)
        : m_database(std::move(database)), m_writes(writes) {}

    std::size_t Count() override { return m_database->Count(); }
    std::optional<RecordId> SeekPosition(PropertyId sortProperty, std::size_t position) override {
        return m_database->SeekPosition(sortProperty, position);
    }
    std::optional<RecordId> SeekValue(PropertyId sortProperty, std::u16string_view value) override {
        return m_database->SeekValue(sortProperty, value);
    }
    std::optional<std::size_t> PositionOf(PropertyId sortProperty, RecordId record) override {
        return m_database->PositionOf(sortProperty, record);
    }
    std::optional<Record> Read(RecordId record) override { return m_database->Read(record); }
    std::optional<RecordId> Add(const Record& record) override {
        return m_writes.Allows() ? m_database->Add(record) : std::nullopt;
    }
    bool Overwrite(RecordId record, const Record& properties) override {
        return m_writes.Allows() && m_database->Overwrite(record, properties);
    }
    bool Delete(RecordId record) override { return m_writes.Allows() && m_database->Delete(record); }
    std::optional<std::int64_t> LastModified() override { return m_database->LastModified(); }

private:
    std::unique_ptr<IRecordDatabase> m_database;
    CFailurePlan& m_writes;
};

}  // namespace

std::unique_ptr<IRecordDatabase> CFailingObjectStore::Open(std::u16string_view name) {
    auto database = m_store.Open(name);
    if (database == nullptr) return nullptr;
    return std::make_unique<CFailingRecordDatabase>(std::move(database), m_writes);
}

}  // namespace rlx
