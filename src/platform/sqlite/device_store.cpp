#include "platform/sqlite/device_store.h"

#include <utility>

#include "platform/sqlite/device_store_parts.h"
#include "platform/sqlite/schema.h"
#include "platform/sqlite/store_opener.h"

namespace rlx {

CDeviceStore::CDeviceStore(std::unique_ptr<CParts> parts) : m_parts(std::move(parts)) {}

CDeviceStore::~CDeviceStore() = default;

IRegistry& CDeviceStore::Registry() {
    return m_parts->registry;
}

IObjectStore& CDeviceStore::Objects() {
    return m_parts->objects;
}

bool CDeviceStore::IsSound() {
    return rlx::IsSound(m_parts->connection);
}

OpenedStore OpenDeviceStore(const std::filesystem::path& file, const IClock& clock) {
    return CStoreOpener(file, clock).Run();
}

std::unique_ptr<CDeviceStore> OpenDeviceStoreInMemory(const IClock& clock) {
    return CStoreOpener({}, clock).InMemory();
}

}  // namespace rlx
