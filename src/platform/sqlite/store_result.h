#pragma once

namespace rlx {

/// What a call of the database library came to, as far as the device store cares.
enum class StoreResult {
    kDone,      ///< finished; no (further) row
    kRow,       ///< a row is there
    kBusy,      ///< another process holds the store longer than we wait
    kDamaged,   ///< the file is not a database, or its content contradicts itself
    kReadOnly,  ///< the file or its folder cannot be written
    kFull,      ///< no room on the disk or in memory
    kRefused,   ///< a constraint forbids the write
    kNoAccess,  ///< the file cannot be opened or made
    kRejected,  ///< the statement names a table or column that is not there
    kFailed     ///< anything else
};

/// The one place that knows the library's result codes, plain or extended.
StoreResult ToStoreResult(int sqliteCode);

}  // namespace rlx
