#pragma once

#include "platform/object_store.h"
#include "platform/sqlite/connection.h"
#include "platform/sqlite/record_ledger.h"

namespace rlx {

/// The record databases of the device store. Does not own the connection and the clock. `Transact` also covers writes
/// to the registry of the same connection.
class CSqliteObjectStore : public IObjectStore {
public:
    CSqliteObjectStore(CConnection& connection, const IClock& clock);

    bool Create(std::u16string_view name, std::uint32_t typeId, const std::vector<PropertyId>& sortOrders) override;
    std::unique_ptr<IRecordDatabase> Open(std::u16string_view name) override;
    bool Remove(std::u16string_view name) override;
    bool Transact(const std::function<bool()>& work) override;

private:
    bool IsThere(const std::string& name);
    bool Insert(const std::string& name, std::uint32_t typeId, const std::string& sortOrders);

    CConnection& m_connection;
    CRecordLedger m_ledger;
};

}  // namespace rlx
