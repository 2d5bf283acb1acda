#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/sqlite/device_store.h"
#include "platform/sqlite/device_store_parts.h"
#include "platform/sqlite/schema.h"

namespace rlx {

/// Opens one device store; used once.
class CStoreOpener {
public:
    CStoreOpener(std::filesystem::path file, const IClock& clock);

    OpenedStore Run();
    std::unique_ptr<CDeviceStore> InMemory();

private:
    SchemaState OpenAndInspect();
    SchemaState InspectFixed();
    OpenedStore Accept(SchemaState state, StoreOutcome created);
    OpenedStore Replace();
    OpenedStore FallBack(StoreOutcome outcome);
    OpenedStore CopyToMemory();
    OpenedStore Finish(StoreOutcome outcome);
    std::filesystem::path AsideName() const;
    bool MoveAside(const std::filesystem::path& aside) const;

    const std::filesystem::path m_file;
    const std::filesystem::path m_suspectMark;
    const IClock& m_clock;
    std::unique_ptr<CDeviceStore::CParts> m_parts;
};

}  // namespace rlx
