#include "platform/sqlite/sqlite_record_database.h"

#include <algorithm>
#include <utility>

#include "platform/sqlite/store_codec.h"

namespace rlx {

CSqliteRecordDatabase::CSqliteRecordDatabase(CConnection& connection, CRecordLedger& ledger, std::u16string_view name)
    : m_connection(connection), m_ledger(ledger), m_name(EncodeText(name)) {}

bool CSqliteRecordDatabase::IsThere() {
    Refresh();
    return m_state.number != 0;
}

std::size_t CSqliteRecordDatabase::Count() {
    Refresh();
    return m_state.count;
}

std::optional<std::int64_t> CSqliteRecordDatabase::LastModified() {
    if (!IsThere()) return std::nullopt;
    return m_state.lastModified;
}

std::optional<RecordId> CSqliteRecordDatabase::SeekPosition(PropertyId sortProperty, std::size_t position) {
    const CRecordIndex* index = Index(sortProperty);
    return index == nullptr ? std::nullopt : index->At(position);
}

std::optional<std::size_t> CSqliteRecordDatabase::PositionOf(PropertyId sortProperty, RecordId record) {
    const CRecordIndex* index = Index(sortProperty);
    return index == nullptr ? std::nullopt : index->PositionOf(record);
}

std::optional<RecordId> CSqliteRecordDatabase::SeekValue(PropertyId sortProperty, std::u16string_view value) {
    const CRecordIndex* index = Index(sortProperty);
    if (index == nullptr) return std::nullopt;
    // The index keeps no texts, so each step of the bisection reads one record.
    const std::string wanted = EncodeText(value);
    std::size_t low = 0;
    for (std::size_t high = index->Count(); low < high;) {
        const std::size_t middle = low + (high - low) / 2;
        const auto key = Key(*index->At(middle), sortProperty);
        if (key && *key < wanted)
            low = middle + 1;
        else
            high = middle;
    }
    const auto found = index->At(low);
    if (!found || Key(*found, sortProperty) != wanted) return std::nullopt;
    return found;
}

std::optional<std::string> CSqliteRecordDatabase::Key(RecordId record, PropertyId sortProperty) {
    CStatement statement = m_connection.Prepare("SELECT properties FROM record WHERE database = ? AND id = ?");
    if (!statement.Bind(1, m_state.number).Bind(2, record).NextRow()) return std::nullopt;
    return std::string(EncodedProperty(statement.Bytes(0), sortProperty));
}

/// What this process did to the store may have ended in a rollback, which gives numbers back. Numbers that another
/// process wrote never come again, so a record that is found under the number of the database that was seen last is the
/// right one, and only what is not found there needs another look at the catalogue.
std::optional<Record> CSqliteRecordDatabase::Read(RecordId record) {
    const std::int64_t seen = SawOwnChanges() ? m_state.number : 0;
    auto found = seen == 0 ? std::nullopt : Select(record);
    if (found || !IsThere() || m_state.number == seen) return found;
    return Select(record);
}

std::optional<Record> CSqliteRecordDatabase::Select(RecordId record) {
    CStatement statement = m_connection.Prepare("SELECT properties FROM record WHERE database = ? AND id = ?");
    if (!statement.Bind(1, m_state.number).Bind(2, record).NextRow()) return std::nullopt;
    return DecodeRecord(statement.Bytes(0));
}

template <typename Visit>
void CSqliteRecordDatabase::ForEach(const CRecordIndex& index, const Visit& visit) {
    CStatement statement = m_connection.Prepare("SELECT id, properties FROM record WHERE database = ? ORDER BY id");
    statement.Bind(1, m_state.number);
    while (statement.NextRow()) {
        // A record that another process added meanwhile has no place yet.
        const auto position = index.PositionOf(statement.Integer(0));
        if (position) visit(*position, statement.Bytes(1));
    }
}

std::vector<Record> CSqliteRecordDatabase::Records(PropertyId sortProperty) {
    const CRecordIndex* index = Index(sortProperty);
    if (index == nullptr) return {};
    std::vector<Record> records(index->Count());
    std::size_t unread = records.size();
    ForEach(*index, [&](std::size_t position, std::string_view properties) {
        if (auto record = DecodeRecord(properties)) {
            records[position] = *std::move(record);
            --unread;
        }
    });
    if (unread > 0) std::erase(records, Record());
    return records;
}

std::vector<std::u16string> CSqliteRecordDatabase::Texts(PropertyId sortProperty) {
    const CRecordIndex* index = Index(sortProperty);
    if (index == nullptr) return {};
    std::vector<std::u16string> texts(index->Count());
    ForEach(*index, [&](std::size_t position, std::string_view properties) {
        texts[position] = DecodeText(EncodedProperty(properties, sortProperty));
    });
    return texts;
}

std::optional<RecordId> CSqliteRecordDatabase::Add(const Record& record) {
    if (!IsRecord(record)) return std::nullopt;
    const std::string properties = EncodeRecord(record);
    std::optional<RecordId> id;
    const bool written = m_connection.Write([&] {
        if (!ResolveForWrite()) return false;
        id = m_ledger.TakeRecordId();
        return id && Insert(*id, properties);
    });
    return written ? id : std::nullopt;
}

bool CSqliteRecordDatabase::Overwrite(RecordId record, const Record& properties) {
    if (!IsRecord(properties)) return false;
    const std::string encoded = EncodeRecord(properties);
    return m_connection.Write([&] { return ResolveForWrite() && Update(record, encoded); });
}

bool CSqliteRecordDatabase::Delete(RecordId record) {
    return m_connection.Write([&] { return ResolveForWrite() && Erase(record); });
}

bool CSqliteRecordDatabase::Insert(RecordId record, const std::string& properties) {
    CStatement statement = m_connection.Prepare("INSERT INTO record(database, id, properties) VALUES(?, ?, ?)");
    if (!statement.Bind(1, m_state.number).Bind(2, record).BindBytes(3, properties).Run()) return false;
    m_ledger.NoteChange(m_state.number, 1);
    return true;
}

bool CSqliteRecordDatabase::Update(RecordId record, const std::string& properties) {
    CStatement statement =
        m_connection.Prepare("UPDATE record SET properties = ? WHERE database = ? AND id = ? RETURNING 1");
    statement.BindBytes(1, properties).Bind(2, m_state.number).Bind(3, record);
    if (!statement.NextRow() || !statement.Run()) return false;
    m_ledger.NoteChange(m_state.number, 0);
    return true;
}

bool CSqliteRecordDatabase::Erase(RecordId record) {
    CStatement statement = m_connection.Prepare("DELETE FROM record WHERE database = ? AND id = ? RETURNING 1");
    if (!statement.Bind(1, m_state.number).Bind(2, record).NextRow() || !statement.Run()) return false;
    m_ledger.NoteChange(m_state.number, -1);
    return true;
}

/// Within the write transaction nobody else can change the catalogue, so one look is enough until we do.
bool CSqliteRecordDatabase::ResolveForWrite() {
    const std::uint64_t transaction = m_connection.TransactionNumber();
    if (m_resolvedIn != transaction || m_seenCatalog != m_ledger.CatalogVersion()) {
        Refresh();
        m_resolvedIn = transaction;
    }
    return m_state.number != 0;
}

bool CSqliteRecordDatabase::SawOwnChanges() const {
    return m_seenVersion == m_ledger.Version() && m_seenCatalog == m_ledger.CatalogVersion();
}

void CSqliteRecordDatabase::Refresh() {
    const std::int64_t outside = m_ledger.OutsideVersion();
    if (outside == m_seenOutside && SawOwnChanges()) return;
    if (m_connection.InTransaction() && !m_ledger.Flush()) return;
    m_seenOutside = outside;
    m_seenVersion = m_ledger.Version();
    m_seenCatalog = m_ledger.CatalogVersion();
    State state = Load();
    if (state.number != m_state.number || state.change != m_state.change) m_indexes.clear();
    m_state = std::move(state);
}

CSqliteRecordDatabase::State CSqliteRecordDatabase::Load() {
    CStatement statement = m_connection.Prepare(
        "SELECT number, sort_orders, record_count, change, last_modified FROM record_database WHERE name = ?");
    if (!statement.BindBytes(1, m_name).NextRow()) return {};
    return {statement.Integer(0), DecodeSortOrders(statement.Bytes(1)), static_cast<std::size_t>(statement.Integer(2)),
            statement.Integer(3), statement.Integer(4)};
}

const CRecordIndex* CSqliteRecordDatabase::Index(PropertyId sortProperty) {
    Refresh();
    const auto& orders = m_state.sortOrders;
    if (std::find(orders.begin(), orders.end(), sortProperty) == orders.end()) return nullptr;
    const auto found = m_indexes.find(sortProperty);
    if (found != m_indexes.end()) return &found->second;
    auto index = BuildIndex(sortProperty);
    return index ? &m_indexes.emplace(sortProperty, std::move(*index)).first->second : nullptr;
}

std::optional<CRecordIndex> CSqliteRecordDatabase::BuildIndex(PropertyId sortProperty) {
    CStatement statement = m_connection.Prepare("SELECT id, properties FROM record WHERE database = ? ORDER BY id");
    statement.Bind(1, m_state.number);
    CRecordIndex::CBuilder builder;
    StoreResult result = statement.Step();
    for (; result == StoreResult::kRow; result = statement.Step())
        builder.Add(statement.Integer(0), EncodedProperty(statement.Bytes(1), sortProperty));
    if (result != StoreResult::kDone) return std::nullopt;
    return builder.Finish();
}

}  // namespace rlx
