#include "platform/sqlite/store_opener.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <system_error>
#include <utility>

namespace rlx {

namespace {

namespace fs = std::filesystem;

fs::path WithSuffix(const fs::path& file, const char* suffix) {
    fs::path result = file;
    result += suffix;
    return result;
}

bool IsThere(const fs::path& file) {
    std::error_code error;
    return fs::exists(fs::symlink_status(file, error));
}

/// Keeps a file from being moved aside (exclusive) while another process opens it (shared): that one would go on with
/// the old file and the new one's log. Without the lock (a file system that has none) the work goes on.
class CFolderLock {
public:
    CFolderLock(const fs::path& folder, int kind)
        : m_descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (m_descriptor >= 0) ::flock(m_descriptor, kind);
    }
    ~CFolderLock() {
        if (m_descriptor >= 0) ::close(m_descriptor);
    }
    CFolderLock(const CFolderLock&) = delete;
    CFolderLock& operator=(const CFolderLock&) = delete;

private:
    int m_descriptor;
};

fs::path FolderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// Settings that cannot be kept are refused, so that whoever changes one learns of it.
constexpr char kRefuseSettings[] =
    "CREATE TEMP TRIGGER no_insert BEFORE INSERT ON registry_value BEGIN SELECT RAISE(ABORT, 'read-only'); END;"
    "CREATE TEMP TRIGGER no_update BEFORE UPDATE ON registry_value BEGIN SELECT RAISE(ABORT, 'read-only'); END;"
    "CREATE TEMP TRIGGER no_delete BEFORE DELETE ON registry_value BEGIN SELECT RAISE(ABORT, 'read-only'); END;";

}  // namespace

CDeviceStore::CParts::~CParts() {
    if (connection.HasMetDamage() && !suspectMark.empty()) std::ofstream{suspectMark};
}

CStoreOpener::CStoreOpener(fs::path file, const IClock& clock)
    : m_file(std::move(file)), m_suspectMark(WithSuffix(m_file, "-suspect")), m_clock(clock) {}

OpenedStore CStoreOpener::Run() {
    {
        const CFolderLock lock(FolderOf(m_file), LOCK_SH);
        const SchemaState state = OpenAndInspect();
        if (state != SchemaState::kDamaged) return Accept(state, StoreOutcome::kCreated);
    }
    return Replace();
}

std::unique_ptr<CDeviceStore> CStoreOpener::InMemory() {
    return FallBack(StoreOutcome::kCreated).store;
}

SchemaState CStoreOpener::OpenAndInspect() {
    m_parts = std::make_unique<CDeviceStore::CParts>(m_clock);
    StoreResult result = m_parts->connection.Open(m_file);
    if (result == StoreResult::kNoAccess) {
        // Most likely the first start of this user: the folder is not there yet.
        std::error_code error;
        if (fs::create_directories(FolderOf(m_file), error)) result = m_parts->connection.Open(m_file);
    }
    SchemaState state = result == StoreResult::kDone ? InspectSchema(m_parts->connection) : SchemaState::kUnreadable;
    if (state == SchemaState::kUnreadable) state = InspectFixed();
    if (state != SchemaState::kReady || !IsThere(m_suspectMark)) return state;
    if (!IsSound(m_parts->connection)) return SchemaState::kDamaged;
    std::error_code error;
    fs::remove(m_suspectMark, error);
    return SchemaState::kReady;
}

/// A store can be read where nothing can be made beside it (a full disk, a folder that is read-only), unless a log has
/// something to tell.
SchemaState CStoreOpener::InspectFixed() {
    std::error_code error;
    const fs::path log = WithSuffix(m_file, "-wal");
    const bool told = !IsThere(log) || (fs::file_size(log, error) == 0 && !error);
    if (!IsThere(m_file) || !told || m_parts->connection.OpenFixed(m_file) != StoreResult::kDone)
        return SchemaState::kUnreadable;
    return InspectSchema(m_parts->connection);
}

OpenedStore CStoreOpener::Accept(SchemaState state, StoreOutcome created) {
    switch (state) {
        case SchemaState::kReady:
            return m_parts->connection.IsReadOnly() ? CopyToMemory() : Finish(StoreOutcome::kOpened);
        case SchemaState::kEmpty:
            if (CreateSchema(m_parts->connection) == StoreResult::kDone) return Finish(created);
            return FallBack(StoreOutcome::kUnreachable);
        case SchemaState::kNewer:
            return FallBack(StoreOutcome::kNewer);
        case SchemaState::kForeign:
            return FallBack(StoreOutcome::kForeign);
        default:
            return FallBack(StoreOutcome::kUnreachable);
    }
}

OpenedStore CStoreOpener::Replace() {
    const CFolderLock lock(FolderOf(m_file), LOCK_EX);
    // Another process may have replaced the file while this one waited for the lock.
    const SchemaState again = OpenAndInspect();
    if (again != SchemaState::kDamaged) return Accept(again, StoreOutcome::kCreated);
    m_parts.reset();
    const fs::path aside = AsideName();
    if (!MoveAside(aside)) return FallBack(StoreOutcome::kUnreachable);
    OpenedStore opened = Accept(OpenAndInspect(), StoreOutcome::kReplaced);
    opened.movedAside = aside;
    return opened;
}

fs::path CStoreOpener::AsideName() const {
    const DateTime now = m_clock.Now();
    std::array<char, 80> stamp{};
    std::snprintf(stamp.data(), stamp.size(), "-%04d-%02d-%02d-%02d%02d%02d", now.date.year, now.date.month,
                  now.date.day, now.hour, now.minute, now.second);
    for (int number = 1;; ++number) {
        fs::path name = m_file.stem();
        name += stamp.data();
        if (number > 1) name += "-" + std::to_string(number);
        name += m_file.extension();
        name += ".damaged";
        fs::path aside = FolderOf(m_file) / name;
        if (!IsThere(aside)) return aside;
    }
}

/// The database itself moves last: a crash on the way leaves a damaged file that the next start moves.
bool CStoreOpener::MoveAside(const fs::path& aside) const {
    std::error_code error;
    for (const char* suffix : {"-wal", "-shm", "-journal"}) {
        if (IsThere(WithSuffix(m_file, suffix)))
            fs::rename(WithSuffix(m_file, suffix), WithSuffix(aside, suffix), error);
        if (error) return false;
    }
    fs::rename(m_file, aside, error);
    if (error) return false;
    fs::remove(m_suspectMark, error);
    return true;
}

/// In memory, databases that the file lacks can still be made for this run.
OpenedStore CStoreOpener::CopyToMemory() {
    auto copy = std::make_unique<CDeviceStore::CParts>(m_clock);
    const bool copied = copy->connection.OpenInMemory() == StoreResult::kDone &&
                        copy->connection.Take(m_parts->connection) == StoreResult::kDone &&
                        copy->connection.Execute(kRefuseSettings) == StoreResult::kDone;
    if (!copied) return FallBack(StoreOutcome::kUnreachable);
    m_parts = std::move(copy);
    return {std::unique_ptr<CDeviceStore>(new CDeviceStore(std::move(m_parts))), StoreOutcome::kReadOnly, std::nullopt};
}

OpenedStore CStoreOpener::FallBack(StoreOutcome outcome) {
    m_parts = std::make_unique<CDeviceStore::CParts>(m_clock);
    if (m_parts->connection.OpenInMemory() == StoreResult::kDone) CreateSchema(m_parts->connection);
    return {std::unique_ptr<CDeviceStore>(new CDeviceStore(std::move(m_parts))), outcome, std::nullopt};
}

OpenedStore CStoreOpener::Finish(StoreOutcome outcome) {
    m_parts->connection.Execute("PRAGMA synchronous = FULL");
    m_parts->connection.Trust();
    m_parts->suspectMark = m_suspectMark;
    return {std::unique_ptr<CDeviceStore>(new CDeviceStore(std::move(m_parts))), outcome, std::nullopt};
}

}  // namespace rlx
