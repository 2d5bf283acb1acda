#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "platform/clock.h"
#include "platform/object_store.h"
#include "platform/registry.h"
#include "platform/store_outcome.h"

namespace rlx {

/// The registry and the record databases of one user in one file. Several processes may have the same file open. Used
/// from one thread; must outlive the record databases that were opened from it.
class CDeviceStore {
public:
    ~CDeviceStore();
    CDeviceStore(const CDeviceStore&) = delete;
    CDeviceStore& operator=(const CDeviceStore&) = delete;

    IRegistry& Registry();
    IObjectStore& Objects();

    /// Reads the whole file and compares what must agree in it; takes a while.
    bool IsSound();

private:
    friend class CStoreOpener;
    class CParts;

    explicit CDeviceStore(std::unique_ptr<CParts> parts);

    std::unique_ptr<CParts> m_parts;
};

struct OpenedStore {
    std::unique_ptr<CDeviceStore> store;  ///< never null
    StoreOutcome outcome = StoreOutcome::kOpened;
    std::optional<std::filesystem::path> movedAside;  ///< where the damaged file now lies
};

/// Opens the device store, or makes it together with the folders above it. A damaged file is moved aside under a name
/// with the date in it and a new store is made. Never fails: at worst the store is in memory and says so. `clock` must
/// outlive the store; dates of record databases come from it.
///
/// Damage that a run meets later leaves a mark (the file's name with "-suspect"), and the next start reads the whole
/// file before it trusts it.
OpenedStore OpenDeviceStore(const std::filesystem::path& file, const IClock& clock);

/// A store that is gone when it is closed.
std::unique_ptr<CDeviceStore> OpenDeviceStoreInMemory(const IClock& clock);

}  // namespace rlx
