#include "platform/sqlite/connection.h"

#include <sqlite3.h>

#include <string>
#include <string_view>
#include <utility>

namespace rlx {

namespace {

constexpr int kOpenFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
constexpr int kFixedFlags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;

/// As a part of a URI.
std::string Escaped(const std::string& path) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string escaped;
    for (const char c : path) {
        if (c == '%' || c == '?' || c == '#') {
            const auto byte = static_cast<unsigned char>(c);
            escaped.append({'%', kDigits[byte >> 4U], kDigits[byte & 15U]});
        } else {
            escaped += c;
        }
    }
    return escaped;
}

}  // namespace

CConnection::CConnection() = default;

CConnection::~CConnection() {
    Close();
}

StoreResult CConnection::Open(const std::filesystem::path& file) {
    // An absolute path is never taken for a special name or a URI.
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(file, error);
    return error ? StoreResult::kNoAccess : OpenNamed(absolute.c_str(), kOpenFlags);
}

StoreResult CConnection::OpenFixed(const std::filesystem::path& file) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(file, error);
    if (error) return StoreResult::kNoAccess;
    const std::string uri = "file://" + Escaped(absolute.native()) + "?mode=ro&immutable=1";
    return OpenNamed(uri.c_str(), kFixedFlags);
}

StoreResult CConnection::OpenInMemory() {
    return OpenNamed(":memory:", kOpenFlags);
}

StoreResult CConnection::Take(CConnection& source) {
    sqlite3_backup* backup = sqlite3_backup_init(m_database, "main", source.m_database, "main");
    if (backup == nullptr) return Note(ToStoreResult(sqlite3_extended_errcode(m_database)));
    sqlite3_backup_step(backup, -1);
    return Note(ToStoreResult(sqlite3_backup_finish(backup)));
}

StoreResult CConnection::OpenNamed(const char* name, int flags) {
    Close();
    const int code = sqlite3_open_v2(name, &m_database, flags, nullptr);
    if (code != SQLITE_OK) {
        Close();
        return Note(ToStoreResult(code));
    }
    sqlite3_busy_timeout(m_database, kBusyTimeout);
    sqlite3_db_config(m_database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    return StoreResult::kDone;
}

void CConnection::Trust() {
    if (m_database != nullptr) sqlite3_db_config(m_database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
}

void CConnection::Close() {
    for (const auto& [sql, statement] : m_statements)
        sqlite3_finalize(statement);
    m_statements.clear();
    sqlite3_close(m_database);
    m_database = nullptr;
    m_metDamage = false;
}

CStatement CConnection::Prepare(const char* sql) {
    const auto found = m_statements.find(sql);
    if (found != m_statements.end()) return {*this, found->second};
    if (m_database == nullptr) return {*this, nullptr};
    sqlite3_stmt* statement = nullptr;
    Note(ToStoreResult(sqlite3_prepare_v3(m_database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr)));
    if (statement != nullptr) m_statements.emplace(sql, statement);
    return {*this, statement};
}

StoreResult CConnection::Check(const char* sql) {
    if (m_database == nullptr) return StoreResult::kNoAccess;
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr);
    sqlite3_finalize(statement);
    return Note(ToStoreResult(code));
}

StoreResult CConnection::Execute(const char* sql) {
    if (m_database == nullptr) return StoreResult::kNoAccess;
    return Note(ToStoreResult(sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr)));
}

std::int64_t CConnection::Number(const char* sql, std::int64_t fallback) {
    CStatement statement = Prepare(sql);
    return statement.NextRow() ? statement.Integer(0) : fallback;
}

void CConnection::SetHooks(Hooks hooks) {
    m_hooks = std::move(hooks);
}

/// Ends a transaction or savepoint on every way out, an exception included.
class CConnection::CScope {
public:
    CScope(CConnection& connection, const char* undo) : m_connection(connection), m_undo(undo) {
        ++m_connection.m_depth;
    }
    ~CScope() {
        --m_connection.m_depth;
        if (m_kept) return;
        if (!m_connection.IsRolledBack()) m_connection.Execute(m_undo);
        if (m_connection.m_hooks.rollback) m_connection.m_hooks.rollback();
    }
    CScope(const CScope&) = delete;
    CScope& operator=(const CScope&) = delete;

    bool KeepIf(bool keep) { return m_kept = keep; }

private:
    CConnection& m_connection;
    const char* m_undo;
    bool m_kept = false;
};

bool CConnection::Transact(const std::function<bool()>& work) {
    return InTransaction() ? RunJoined(work) : RunOutermost(work);
}

bool CConnection::Write(const std::function<bool()>& statement) {
    if (!InTransaction()) return RunOutermost(statement);
    return !IsRolledBack() && statement();
}

bool CConnection::RunOutermost(const std::function<bool()>& work) {
    if (!Prepare("BEGIN IMMEDIATE").Run()) return false;
    ++m_transactionNumber;
    CScope scope(*this, "ROLLBACK");
    const bool flushed = work() && (!m_hooks.flush || m_hooks.flush());
    return scope.KeepIf(flushed && !IsRolledBack() && Prepare("COMMIT").Run());
}

bool CConnection::RunJoined(const std::function<bool()>& work) {
    if (IsRolledBack() || (m_hooks.flush && !m_hooks.flush())) return false;
    if (!Prepare("SAVEPOINT joined").Run()) return false;
    CScope scope(*this, "ROLLBACK TO joined; RELEASE joined");
    return scope.KeepIf(work() && !IsRolledBack() && Prepare("RELEASE joined").Run());
}

// Some failures (a full disk) end the whole transaction; what follows must not slip in outside it.
bool CConnection::IsRolledBack() const {
    return sqlite3_get_autocommit(m_database) != 0;
}

bool CConnection::IsReadOnly() const {
    return m_database != nullptr && sqlite3_db_readonly(m_database, "main") == 1;
}

StoreResult CConnection::Note(StoreResult result) {
    if (result == StoreResult::kDamaged) m_metDamage = true;
    return result;
}

}  // namespace rlx
