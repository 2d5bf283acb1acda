#include "platform/sqlite/schema.h"

#include <chrono>
#include <thread>

namespace rlx {

namespace {

constexpr std::int64_t kSchemaVersion = 1;
constexpr std::int64_t kApplicationId = 0x526C7844;  // "RlxD"

// The number in `application_id` and `user_version` below is that of the constants above.
constexpr const char* kTables = R"(
CREATE TABLE registry_key(
    number INTEGER PRIMARY KEY,
    root INTEGER NOT NULL,
    path BLOB NOT NULL,
    UNIQUE(root, path));
CREATE TABLE registry_value(
    number INTEGER PRIMARY KEY,
    key INTEGER NOT NULL,
    name BLOB NOT NULL,
    type INTEGER NOT NULL,
    data BLOB NOT NULL,
    UNIQUE(key, name));
CREATE TABLE record_database(
    number INTEGER PRIMARY KEY AUTOINCREMENT,
    name BLOB NOT NULL UNIQUE,
    type INTEGER NOT NULL,
    sort_orders BLOB NOT NULL,
    record_count INTEGER NOT NULL,
    change INTEGER NOT NULL,
    last_modified INTEGER NOT NULL);
CREATE TABLE record(
    database INTEGER NOT NULL,
    id INTEGER NOT NULL,
    properties BLOB NOT NULL,
    PRIMARY KEY(database, id)) WITHOUT ROWID;
CREATE TABLE record_counter(
    next_record INTEGER NOT NULL,
    next_change INTEGER NOT NULL);
INSERT INTO record_counter VALUES(1, 1);
PRAGMA application_id = 1382840388;
PRAGMA user_version = 1;
)";
static_assert(kApplicationId == 1382840388 && kSchemaVersion == 1);

// Compiles only when every table and column is there; it is never run.
constexpr const char* kTouchAll =
    "SELECT k.number, k.root, k.path, v.number, v.key, v.name, v.type, v.data, d.number, d.name, d.type, "
    "d.sort_orders, d.record_count, d.change, d.last_modified, r.database, r.id, r.properties, c.next_record, "
    "c.next_change FROM registry_key k, registry_value v, record_database d, record r, record_counter c";

/// The library does not wait for other processes while it changes the journal mode, so we do.
StoreResult SwitchToWal(CConnection& connection) {
    constexpr auto kPause = std::chrono::milliseconds(5);
    constexpr int kTries = CConnection::kBusyTimeout / static_cast<int>(kPause.count());
    StoreResult result = connection.Execute("PRAGMA journal_mode = WAL");
    for (int i = 0; i < kTries && result == StoreResult::kBusy; ++i) {
        std::this_thread::sleep_for(kPause);
        result = connection.Execute("PRAGMA journal_mode = WAL");
    }
    return result;
}

SchemaState StateOfFailure(StoreResult result) {
    const bool damaged = result == StoreResult::kDamaged || result == StoreResult::kRejected;
    return damaged ? SchemaState::kDamaged : SchemaState::kUnreadable;
}

}  // namespace

SchemaState InspectSchema(CConnection& connection) {
    std::int64_t version = 0;
    {
        CStatement statement = connection.Prepare("PRAGMA user_version");
        const StoreResult result = statement.Step();
        if (result != StoreResult::kRow) return StateOfFailure(result);
        version = statement.Integer(0);
    }
    if (connection.Number("PRAGMA application_id", 0) != kApplicationId) {
        const bool empty = version == 0 && connection.Number("SELECT count(*) FROM sqlite_schema", 1) == 0;
        if (connection.HasMetDamage()) return SchemaState::kDamaged;
        // Another process may have made tables and number, in one step, between the two questions.
        if (!empty && connection.Number("PRAGMA application_id", 0) == kApplicationId) return InspectSchema(connection);
        return empty ? SchemaState::kEmpty : SchemaState::kForeign;
    }
    if (version > kSchemaVersion) return SchemaState::kNewer;
    const StoreResult tables = connection.Check(kTouchAll);
    return tables == StoreResult::kDone ? SchemaState::kReady : StateOfFailure(tables);
}

StoreResult CreateSchema(CConnection& connection) {
    const StoreResult result = SwitchToWal(connection);
    if (result != StoreResult::kDone) return result;
    StoreResult made = StoreResult::kFailed;
    const bool done = connection.Transact([&] {
        // Another process may have been first.
        made = connection.Number("PRAGMA user_version", -1) == 0 ? connection.Execute(kTables) : StoreResult::kDone;
        return made == StoreResult::kDone;
    });
    return done ? StoreResult::kDone : made == StoreResult::kDone ? StoreResult::kFailed : made;
}

bool IsSound(CConnection& connection) {
    CStatement statement = connection.Prepare("PRAGMA quick_check(1)");
    return statement.NextRow() && statement.Bytes(0) == "ok" && !connection.HasMetDamage();
}

}  // namespace rlx
