#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "platform/sqlite/statement.h"
#include "platform/sqlite/store_result.h"

struct sqlite3;

namespace rlx {

/// An open database file, its prepared statements and its transaction. One thread.
class CConnection {
public:
    /// How long a call waits for another process before it fails, in milliseconds.
    static constexpr int kBusyTimeout = 30000;

    CConnection();
    ~CConnection();
    CConnection(const CConnection&) = delete;
    CConnection& operator=(const CConnection&) = delete;

    /// Opens the file, or makes an empty one. Nothing is read yet, so damage shows at the first statement.
    StoreResult Open(const std::filesystem::path& file);

    /// Opens a file that nobody writes to, of which nothing can be made beside it: what lies in a folder that is
    /// read-only. What a log beside it holds is not seen.
    StoreResult OpenFixed(const std::filesystem::path& file);

    /// An empty database that is gone with the connection.
    StoreResult OpenInMemory();

    /// Puts all that `source` holds in the place of what this one holds. A connection in memory is meant.
    StoreResult Take(CConnection& source);

    void Close();

    /// Closing the last connection folds the log beside the file into it. That is off after `Open`, so that a file that
    /// turns out to be damaged stays as it was found, log and all; on once the file is trusted.
    void Trust();

    /// `sql` must be a literal: it is prepared once and found again by its address.
    CStatement Prepare(const char* sql);

    /// `kRejected` when a table or column that `sql` names is not there. Does not run it.
    StoreResult Check(const char* sql);

    /// Runs statements that are not worth keeping. `sql` may hold several, separated by ";".
    StoreResult Execute(const char* sql);

    /// The first column of the first row, `fallback` when there is none.
    std::int64_t Number(const char* sql, std::int64_t fallback);

    /// For one that holds a part of a transaction in memory.
    struct Hooks {
        std::function<bool()> flush;     ///< brings it into the transaction; called before the commit
        std::function<void()> rollback;  ///< forgets it
    };
    void SetHooks(Hooks hooks);

    /// Runs `work` within a write transaction. When it returns false or throws, or the commit fails, nothing of it is
    /// there. A call inside another joins it: failing takes back its own writes and leaves the outer one going.
    bool Transact(const std::function<bool()>& work);

    /// As `Transact` for a single statement, which is all or nothing by itself: joining costs nothing.
    bool Write(const std::function<bool()>& statement);

    bool InTransaction() const { return m_depth > 0; }

    /// Another number for each outermost transaction, from 1.
    std::uint64_t TransactionNumber() const { return m_transactionNumber; }

    /// True when the file can be read but not written.
    bool IsReadOnly() const;

    /// True after any call that met a damaged file.
    bool HasMetDamage() const { return m_metDamage; }

    StoreResult Note(StoreResult result);

private:
    class CScope;

    StoreResult OpenNamed(const char* name, int flags);
    bool RunOutermost(const std::function<bool()>& work);
    bool RunJoined(const std::function<bool()>& work);
    bool IsRolledBack() const;

    sqlite3* m_database = nullptr;
    std::unordered_map<const char*, sqlite3_stmt*> m_statements;
    Hooks m_hooks;
    std::uint64_t m_transactionNumber = 0;
    int m_depth = 0;
    bool m_metDamage = false;
};

}  // namespace rlx
