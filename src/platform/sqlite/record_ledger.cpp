#include "platform/sqlite/record_ledger.h"

namespace rlx {

CRecordLedger::CRecordLedger(CConnection& connection, const IClock& clock) : m_connection(connection), m_clock(clock) {
    m_connection.SetHooks({[this] { return Flush(); }, [this] { Forget(); }});
}

CRecordLedger::~CRecordLedger() {
    m_connection.SetHooks({});
}

std::optional<RecordId> CRecordLedger::TakeRecordId() {
    if (!LoadCounter()) return std::nullopt;
    return (*m_nextRecord)++;
}

std::optional<std::int64_t> CRecordLedger::TakeChangeNumber() {
    if (!LoadCounter()) return std::nullopt;
    return m_nextChange++;
}

void CRecordLedger::NoteChange(std::int64_t database, std::int64_t countDelta) {
    m_countDeltas[database] += countDelta;
    ++m_version;
}

bool CRecordLedger::LoadCounter() {
    if (m_nextRecord) return true;
    CStatement statement = m_connection.Prepare("SELECT next_record, next_change FROM record_counter");
    if (!statement.NextRow()) return false;
    m_nextRecord = statement.Integer(0);
    m_nextChange = statement.Integer(1);
    return true;
}

bool CRecordLedger::Flush() {
    for (const auto& [database, countDelta] : m_countDeltas) {
        if (!FlushDatabase(database, countDelta)) return false;
    }
    m_countDeltas.clear();
    if (!m_nextRecord) return true;
    CStatement statement = m_connection.Prepare("UPDATE record_counter SET next_record = ?, next_change = ?");
    if (!statement.Bind(1, *m_nextRecord).Bind(2, m_nextChange).Run()) return false;
    m_nextRecord.reset();
    return true;
}

bool CRecordLedger::FlushDatabase(std::int64_t database, std::int64_t countDelta) {
    const auto change = TakeChangeNumber();
    if (!change) return false;
    CStatement statement = m_connection.Prepare(
        "UPDATE record_database SET record_count = record_count + ?, change = ?, last_modified = ? WHERE number = ?");
    return statement.Bind(1, countDelta).Bind(2, *change).Bind(3, Now()).Bind(4, database).Run();
}

void CRecordLedger::Forget() {
    m_nextRecord.reset();
    m_countDeltas.clear();
    ++m_version;
    ++m_catalogVersion;
}

std::int64_t CRecordLedger::OutsideVersion() {
    return m_connection.Number("PRAGMA data_version", 0);
}

std::int64_t CRecordLedger::Now() const {
    return SecondNumber(m_clock.Now());
}

}  // namespace rlx
