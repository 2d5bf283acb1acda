#pragma once

#include "platform/time_zones.h"

namespace rlx {

/// The zone files of the system, read by the library cctz; the lists of zones beside them, read here.
class CCctzTimeZones : public ITimeZones {
public:
    std::optional<std::vector<OffsetChange>> Offsets(std::string_view zone, std::int64_t from,
                                                     std::int64_t to) override;
    std::vector<std::string> Names() override;
    std::string OwnZone() override;
};

}  // namespace rlx
