#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "platform/clock.h"
#include "platform/object_store.h"
#include "platform/sqlite/connection.h"

namespace rlx {

/// The book-keeping of record databases: record numbers, counts, change numbers and dates. Within a transaction it
/// gathers them in memory, so that a thousand records cost a thousand inserts and one update. It also tells the open
/// handles when to look again. One for each connection; does not own connection and clock.
class CRecordLedger {
public:
    CRecordLedger(CConnection& connection, const IClock& clock);
    ~CRecordLedger();
    CRecordLedger(const CRecordLedger&) = delete;
    CRecordLedger& operator=(const CRecordLedger&) = delete;

    /// A number that no record of the store ever had. Within a transaction.
    std::optional<RecordId> TakeRecordId();

    /// A record was written. Within a transaction.
    void NoteChange(std::int64_t database, std::int64_t countDelta);

    /// A database was created or removed.
    void NoteCatalogChange() { ++m_catalogVersion; }

    /// Writes what was gathered; false when the device refuses.
    bool Flush();

    /// Grows with every write of a record through this connection.
    std::uint64_t Version() const { return m_version; }

    /// Grows whenever a database may have come or gone through this connection.
    std::uint64_t CatalogVersion() const { return m_catalogVersion; }

    /// Changes whenever another connection has written.
    std::int64_t OutsideVersion();

    std::int64_t Now() const;

    /// A change number that no database of the store ever had. Within a transaction.
    std::optional<std::int64_t> TakeChangeNumber();

private:
    bool LoadCounter();
    bool FlushDatabase(std::int64_t database, std::int64_t countDelta);
    void Forget();

    CConnection& m_connection;
    const IClock& m_clock;
    std::optional<RecordId> m_nextRecord;  ///< loaded at the first use within a transaction
    std::int64_t m_nextChange = 0;
    std::map<std::int64_t, std::int64_t> m_countDeltas;
    std::uint64_t m_version = 1;
    std::uint64_t m_catalogVersion = 1;
};

}  // namespace rlx
