#pragma once

#include "platform/sqlite/connection.h"

namespace rlx {

/// What lies in an opened file.
enum class SchemaState {
    kReady,    ///< a device store of the version that we know
    kEmpty,    ///< nothing at all: a new file
    kNewer,    ///< a device store of a later version
    kForeign,  ///< a database of something else
    kDamaged,
    kUnreadable  ///< cannot be told: no access, or held by another process too long
};

SchemaState InspectSchema(CConnection& connection);

/// Makes the tables of an empty file in one step. Two processes that do so at once end with one schema.
StoreResult CreateSchema(CConnection& connection);

/// Reads the whole file and compares tables with their indexes. Takes a while: only when something looked wrong.
bool IsSound(CConnection& connection);

}  // namespace rlx
