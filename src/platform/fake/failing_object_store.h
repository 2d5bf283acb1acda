#pragma once

#include "platform/fake/failure_plan.h"
#include "platform/object_store.h"

namespace rlx {

/// Another object store whose writes (of databases and of records) are refused as the plan says. Opening and reading
/// always work. Owns neither.
class CFailingObjectStore : public IObjectStore {
public:
    CFailingObjectStore(IObjectStore& store, CFailurePlan& writes) : m_store(store), m_writes(writes) {}

    bool Create(std::u16string_view name, std::uint32_t typeId, const std::vector<PropertyId>& sortOrders) override {
        return m_writes.Allows() && m_store.Create(name, typeId, sortOrders);
    }
    std::unique_ptr<IRecordDatabase> Open(std::u16string_view name) override;
    bool Remove(std::u16string_view name) override { return m_writes.Allows() && m_store.Remove(name); }
    bool Transact(const std::function<bool()>& work) override { return m_store.Transact(work); }

private:
    IObjectStore& m_store;
    CFailurePlan& m_writes;
};

}  // namespace rlx
