#pragma once

#include <map>

#include "platform/time_zones.h"

namespace rlx {

/// Zones as a test makes them: each with its offset at first and the changes behind it, ascending.
class CFixedTimeZones : public ITimeZones {
public:
    std::map<std::string, std::vector<OffsetChange>, std::less<>> zones;
    std::string own;

    std::optional<std::vector<OffsetChange>> Offsets(std::string_view zone, std::int64_t from,
                                                     std::int64_t to) override {
        const auto found = zones.find(zone);
        if (found == zones.end()) return std::nullopt;
        std::vector<OffsetChange> changes{{from, found->second.front().offset}};
        for (const OffsetChange& change : found->second) {
            if (change.second <= from) changes.front().offset = change.offset;
            if (change.second > from && change.second < to) changes.push_back(change);
        }
        return changes;
    }
    std::vector<std::string> Names() override {
        std::vector<std::string> names;
        for (const auto& [name, changes] : zones)
            names.push_back(name);
        return names;
    }
    std::string OwnZone() override { return own; }
};

}  // namespace rlx
