#pragma once

#include <filesystem>

#include "platform/sqlite/connection.h"
#include "platform/sqlite/device_store.h"
#include "platform/sqlite/sqlite_object_store.h"
#include "platform/sqlite/sqlite_registry.h"

namespace rlx {

/// What a device store is made of.
class CDeviceStore::CParts {
public:
    explicit CParts(const IClock& clock) : registry(connection), objects(connection, clock) {}

    /// Leaves the mark for the next start when this run met damage.
    ~CParts();

    CParts(const CParts&) = delete;
    CParts& operator=(const CParts&) = delete;

    CConnection connection;
    CSqliteRegistry registry;
    CSqliteObjectStore objects;
    std::filesystem::path suspectMark;  ///< empty for a store in memory
};

}  // namespace rlx
