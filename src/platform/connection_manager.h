#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/guid.h"

namespace rlx {

/// A network that the device can reach.
struct Destination {
    Guid guid;
    std::u16string description;
};

/// A connection that stands until it is released.
using ConnectionHandle = std::uint64_t;

/// The device's networks. Used from one thread.
class IConnectionManager {
public:
    virtual ~IConnectionManager() = default;

    /// The network through which a URL is reached; nothing when there is none.
    virtual std::optional<Guid> MapUrl(std::u16string_view url) = 0;

    /// The destinations from index 0 on; nothing past the last.
    virtual std::optional<Destination> EnumDestinations(std::size_t index) = 0;

    /// Waits up to `timeout` for a connection to the destination. Each handle is released once.
    virtual std::optional<ConnectionHandle> Establish(const Guid& destination, std::chrono::milliseconds timeout) = 0;

    virtual void Release(ConnectionHandle connection) = 0;

    /// True when the key of that path (below the machine's root) is there: the read-only entries in which a provider
    /// says which destinations it serves. Both spellings of the path are asked for, so either may answer.
    virtual bool HasProviderKey(std::u16string_view keyPath) = 0;
};

}  // namespace rlx
