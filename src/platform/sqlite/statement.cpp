#include "platform/sqlite/statement.h"

#include <sqlite3.h>

#include "platform/sqlite/connection.h"

namespace rlx {

CStatement::CStatement(CConnection& connection, sqlite3_stmt* statement)
    : m_connection(connection), m_statement(statement) {}

CStatement::~CStatement() {
    if (m_statement == nullptr) return;
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

CStatement& CStatement::Bind(int parameter, std::int64_t value) {
    if (m_statement != nullptr) sqlite3_bind_int64(m_statement, parameter, value);
    return *this;
}

CStatement& CStatement::BindBytes(int parameter, std::string_view bytes) {
    if (m_statement == nullptr) return *this;
    // A null pointer would bind NULL, which an empty text is not.
    const char* data = bytes.empty() ? "" : bytes.data();
    sqlite3_bind_blob64(m_statement, parameter, data, bytes.size(), SQLITE_STATIC);
    return *this;
}

StoreResult CStatement::Step() {
    if (m_statement == nullptr) return StoreResult::kFailed;
    return m_connection.Note(ToStoreResult(sqlite3_step(m_statement)));
}

std::int64_t CStatement::Integer(int column) const {
    return sqlite3_column_int64(m_statement, column);
}

std::string_view CStatement::Bytes(int column) const {
    const void* data = sqlite3_column_blob(m_statement, column);
    const int size = sqlite3_column_bytes(m_statement, column);
    if (data == nullptr || size <= 0) return {};
    return {static_cast<const char*>(data), static_cast<std::size_t>(size)};
}

}  // namespace rlx
