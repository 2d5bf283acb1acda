#include "platform/sqlite/sqlite_object_store.h"

#include "platform/sqlite/sqlite_record_database.h"
#include "platform/sqlite/store_codec.h"

namespace rlx {

CSqliteObjectStore::CSqliteObjectStore(CConnection& connection, const IClock& clock)
    : m_connection(connection), m_ledger(connection, clock) {}

bool CSqliteObjectStore::Create(std::u16string_view name, std::uint32_t typeId,
                                const std::vector<PropertyId>& sortOrders) {
    if (sortOrders.size() > kMaxSortOrders) return false;
    const std::string encoded = EncodeText(name);
    const std::string orders = EncodeSortOrders(sortOrders);
    return m_connection.Transact([&] { return IsThere(encoded) || Insert(encoded, typeId, orders); });
}

bool CSqliteObjectStore::IsThere(const std::string& name) {
    CStatement statement = m_connection.Prepare("SELECT 1 FROM record_database WHERE name = ?");
    return statement.BindBytes(1, name).NextRow();
}

bool CSqliteObjectStore::Insert(const std::string& name, std::uint32_t typeId, const std::string& sortOrders) {
    const auto change = m_ledger.TakeChangeNumber();
    if (!change) return false;
    CStatement statement = m_connection.Prepare(
        "INSERT INTO record_database(name, type, sort_orders, record_count, change, last_modified) "
        "VALUES(?, ?, ?, 0, ?, ?)");
    statement.BindBytes(1, name).Bind(2, typeId).BindBytes(3, sortOrders).Bind(4, *change).Bind(5, m_ledger.Now());
    if (!statement.Run()) return false;
    m_ledger.NoteCatalogChange();
    return true;
}

std::unique_ptr<IRecordDatabase> CSqliteObjectStore::Open(std::u16string_view name) {
    auto database = std::make_unique<CSqliteRecordDatabase>(m_connection, m_ledger, name);
    if (!database->IsThere()) return nullptr;
    return database;
}

bool CSqliteObjectStore::Remove(std::u16string_view name) {
    const std::string encoded = EncodeText(name);
    return m_connection.Transact([&] {
        CStatement records = m_connection.Prepare(
            "DELETE FROM record WHERE database = (SELECT number FROM record_database WHERE name = ?)");
        CStatement database = m_connection.Prepare("DELETE FROM record_database WHERE name = ?");
        if (!records.BindBytes(1, encoded).Run() || !database.BindBytes(1, encoded).Run()) return false;
        m_ledger.NoteCatalogChange();
        return true;
    });
}

bool CSqliteObjectStore::Transact(const std::function<bool()>& work) {
    return m_connection.Transact(work);
}

}  // namespace rlx
