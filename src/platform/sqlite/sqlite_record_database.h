#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/object_store.h"
#include "platform/sqlite/connection.h"
#include "platform/sqlite/record_index.h"
#include "platform/sqlite/record_ledger.h"

namespace rlx {

/// An open handle on one record database of the device store. It keeps an index for each sort order that it was asked
/// for and makes it again after any change. It holds on to the name: a database that was removed and made again is
/// found again. Does not own connection and ledger.
class CSqliteRecordDatabase : public IRecordDatabase {
public:
    CSqliteRecordDatabase(CConnection& connection, CRecordLedger& ledger, std::u16string_view name);

    /// False when there is no database of that name.
    bool IsThere();

    std::size_t Count() override;
    std::optional<RecordId> SeekPosition(PropertyId sortProperty, std::size_t position) override;
    std::optional<RecordId> SeekValue(PropertyId sortProperty, std::u16string_view value) override;
    std::optional<std::size_t> PositionOf(PropertyId sortProperty, RecordId record) override;
    std::optional<Record> Read(RecordId record) override;
    std::vector<Record> Records(PropertyId sortProperty) override;
    std::vector<std::u16string> Texts(PropertyId sortProperty) override;
    std::optional<RecordId> Add(const Record& record) override;
    bool Overwrite(RecordId record, const Record& properties) override;
    bool Delete(RecordId record) override;
    std::optional<std::int64_t> LastModified() override;

private:
    /// The database's row as last seen; number 0: none of that name.
    struct State {
        std::int64_t number = 0;
        std::vector<PropertyId> sortOrders;
        std::size_t count = 0;
        std::int64_t change = 0;
        std::int64_t lastModified = 0;
    };

    bool SawOwnChanges() const;
    void Refresh();
    State Load();
    bool ResolveForWrite();
    const CRecordIndex* Index(PropertyId sortProperty);
    std::optional<CRecordIndex> BuildIndex(PropertyId sortProperty);
    /// Calls `visit(position in the index, encoded properties)` for all records.
    template <typename Visit>
    void ForEach(const CRecordIndex& index, const Visit& visit);

    std::optional<Record> Select(RecordId record);
    std::optional<std::string> Key(RecordId record, PropertyId sortProperty);
    bool Insert(RecordId record, const std::string& properties);
    bool Update(RecordId record, const std::string& properties);
    bool Erase(RecordId record);

    CConnection& m_connection;
    CRecordLedger& m_ledger;
    const std::string m_name;  ///< encoded
    State m_state;
    std::map<PropertyId, CRecordIndex> m_indexes;
    std::int64_t m_seenOutside = -1;
    std::uint64_t m_seenVersion = 0;
    std::uint64_t m_seenCatalog = 0;
    std::uint64_t m_resolvedIn = 0;  ///< transaction in which the row was looked up last
};

}  // namespace rlx
