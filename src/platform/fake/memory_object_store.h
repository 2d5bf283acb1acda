#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/fake/failure_plan.h"
#include "platform/object_store.h"

namespace rlx {

/// An object store that is gone with the object. It can be told to refuse writes.
class CMemoryObjectStore : public IObjectStore {
public:
    bool Create(std::u16string_view name, std::uint32_t typeId, const std::vector<PropertyId>& sortOrders) override;
    std::unique_ptr<IRecordDatabase> Open(std::u16string_view name) override;
    bool Remove(std::u16string_view name) override;
    bool Transact(const std::function<bool()>& work) override;

    /// Which of the coming writes are refused: databases made or removed, records added, changed or deleted.
    CFailurePlan& Failures() { return m_failures; }

    /// What `LastModified` answers for writes from now on.
    void SetTime(std::int64_t seconds) { m_state.now = seconds; }

    /// The type number that a database was made with.
    std::optional<std::uint32_t> TypeOf(std::u16string_view name) const;
    std::vector<PropertyId> SortOrdersOf(std::u16string_view name) const;

    /// Called once, at the start of the next outermost `Transact`: what another process did just before.
    void BeforeNextTransact(std::function<void()> action) { m_before = std::move(action); }

private:
    friend class CMemoryRecordDatabase;

    struct Database {
        std::uint32_t type = 0;
        std::vector<PropertyId> sortOrders;
        std::map<RecordId, Record> records;
        std::int64_t lastModified = 0;
    };
    struct State {
        std::map<std::u16string, Database, std::less<>> databases;
        RecordId nextId = 1;
        std::int64_t now = 0;
    };

    bool TakeWrite();
    Database* Find(std::u16string_view name);

    State m_state;
    std::uint64_t m_version = 0;  ///< grows with every write
    CFailurePlan m_failures;
    bool m_inTransaction = false;
    std::function<void()> m_before;
};

}  // namespace rlx
