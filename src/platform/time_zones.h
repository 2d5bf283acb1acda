#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rlx {

/// From `second` on (since 1970, UTC) the clocks of a zone run `offset` seconds east of UTC.
struct OffsetChange {
    std::int64_t second = 0;
    int offset = 0;

    friend bool operator==(const OffsetChange&, const OffsetChange&) = default;
};

/// The time zones that the system knows, by their IANA names ("Europe/Paris"). Reads files, never the zone of the
/// process. Used from one thread.
class ITimeZones {
public:
    virtual ~ITimeZones() = default;

    /// The offset at `from`, then each change behind it and before `to` (seconds since 1970, UTC). Nothing when the
    /// system knows no such zone.
    virtual std::optional<std::vector<OffsetChange>> Offsets(std::string_view zone, std::int64_t from,
                                                             std::int64_t to) = 0;

    /// The zones of places, sorted; empty when the system has no zone data.
    virtual std::vector<std::string> Names() = 0;

    /// The zone that the device is set to, an older name of it replaced by the one in `Names`; empty when it cannot be
    /// told. A zone that belongs to no place ("Etc/UTC") is given as it is.
    virtual std::string OwnZone() = 0;
};

}  // namespace rlx
