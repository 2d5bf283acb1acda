#pragma once

#include "platform/connection_manager.h"

namespace rlx {

/// A device that is not connected to anything.
class COfflineConnectionManager : public IConnectionManager {
public:
    std::optional<Guid> MapUrl(std::u16string_view) override { return std::nullopt; }
    std::optional<Destination> EnumDestinations(std::size_t) override { return std::nullopt; }
    std::optional<ConnectionHandle> Establish(const Guid&, std::chrono::milliseconds) override { return std::nullopt; }
    void Release(ConnectionHandle) override {}
    bool HasProviderKey(std::u16string_view) override { return false; }
};

}  // namespace rlx
