#pragma once

#include <cstdint>
#include <string_view>

#include "platform/sqlite/store_result.h"

struct sqlite3_stmt;

namespace rlx {

class CConnection;

/// One use of a prepared statement, which stays with its connection for the next use: reset when this goes out of
/// scope. Parameters are numbered from 1, columns from 0. Bound bytes must stay where they are until then.
class CStatement {
public:
    /// `statement` may be null: every step then fails.
    CStatement(CConnection& connection, sqlite3_stmt* statement);
    ~CStatement();
    CStatement(const CStatement&) = delete;
    CStatement& operator=(const CStatement&) = delete;

    CStatement& Bind(int parameter, std::int64_t value);
    CStatement& BindBytes(int parameter, std::string_view bytes);

    StoreResult Step();

    /// True when there is a (further) row.
    bool NextRow() { return Step() == StoreResult::kRow; }

    /// Runs a statement that gives no row; true when it was done.
    bool Run() { return Step() == StoreResult::kDone; }

    std::int64_t Integer(int column) const;

    /// Valid until the next step.
    std::string_view Bytes(int column) const;

private:
    CConnection& m_connection;
    sqlite3_stmt* m_statement;
};

}  // namespace rlx
