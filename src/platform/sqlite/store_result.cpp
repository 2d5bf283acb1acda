#include "platform/sqlite/store_result.h"

#include <sqlite3.h>

namespace rlx {

StoreResult ToStoreResult(int sqliteCode) {
    switch (sqliteCode & 0xFF) {
        case SQLITE_OK:
        case SQLITE_DONE:
            return StoreResult::kDone;
        case SQLITE_ROW:
            return StoreResult::kRow;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return StoreResult::kBusy;
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return StoreResult::kDamaged;
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return StoreResult::kReadOnly;
        case SQLITE_FULL:
        case SQLITE_NOMEM:
        case SQLITE_TOOBIG:
            return StoreResult::kFull;
        case SQLITE_CONSTRAINT:
            return StoreResult::kRefused;
        case SQLITE_CANTOPEN:
            return StoreResult::kNoAccess;
        case SQLITE_ERROR:
            return StoreResult::kRejected;
        default:
            return StoreResult::kFailed;
    }
}

}  // namespace rlx
