#include "platform/cctz/cctz_time_zones.h"

#include <cctz/civil_time.h>
#include <cctz/time_zone.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace rlx {

namespace {

using Instant = cctz::time_point<cctz::seconds>;

constexpr std::size_t kLongestName = 100;
constexpr char kZoneFolder[] = "/usr/share/zoneinfo";

Instant InstantOf(std::int64_t second) {
    return Instant(cctz::seconds(second));
}

/// Names come from files that anybody may have written; none of them leads out of the folder of zones.
bool IsZoneName(std::string_view name) {
    const auto isUsual = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' || c == '_' ||
               c == '+' || c == '-';
    };
    return !name.empty() && name.size() <= kLongestName && name.front() != '/' &&
           std::all_of(name.begin(), name.end(), isUsual);
}

std::filesystem::path ZoneFolder() {
    const char* folder = std::getenv("TZDIR");
    return folder != nullptr && *folder != '\0' ? folder : kZoneFolder;
}

/// What "TZ", else the link /etc/localtime, else the file /etc/timezone says.
std::string ConfiguredZone() {
    if (const char* zone = std::getenv("TZ"); zone != nullptr && *zone != '\0') return zone + (*zone == ':' ? 1 : 0);
    std::error_code error;
    const std::string target = std::filesystem::read_symlink("/etc/localtime", error).string();
    constexpr std::string_view kBefore = "zoneinfo/";
    const std::size_t at = target.find(kBefore);
    if (!error && at != std::string::npos) return target.substr(at + kBefore.size());
    std::string zone;
    std::ifstream("/etc/timezone") >> zone;
    return zone;
}

/// The name that stands for an older one: lines "L NEW OLD" of the list of all zones.
std::string NewerName(const std::string& zone) {
    std::ifstream list(ZoneFolder() / "tzdata.zi");
    for (std::string line; std::getline(list, line);) {
        std::istringstream words(line);
        std::string kind, newer, older;
        words >> kind >> newer >> older;
        if (kind == "L" && older == zone) return newer;
    }
    return zone;
}

}  // namespace

std::optional<std::vector<OffsetChange>> CCctzTimeZones::Offsets(std::string_view name, std::int64_t from,
                                                                 std::int64_t to) {
    cctz::time_zone zone;
    if (!IsZoneName(name) || !cctz::load_time_zone(std::string(name), &zone)) return std::nullopt;
    std::vector<OffsetChange> changes{{from, zone.lookup(InstantOf(from)).offset}};
    cctz::time_zone::civil_transition transition;
    Instant at = InstantOf(from);
    while (zone.next_transition(at, &transition)) {
        // The transition is told as what the wall clock shows in the offset before it.
        const std::int64_t second = transition.from - cctz::civil_second() - changes.back().offset;
        if (second >= to) break;
        at = InstantOf(second);
        const int offset = zone.lookup(at).offset;
        if (offset != changes.back().offset) changes.push_back({second, offset});
    }
    return changes;
}

/// The third column of "zone.tab".
std::vector<std::string> CCctzTimeZones::Names() {
    std::vector<std::string> names;
    std::ifstream table(ZoneFolder() / "zone.tab");
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        std::string country, position, name;
        if (!line.starts_with('#') && words >> country >> position >> name) names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string CCctzTimeZones::OwnZone() {
    const std::string zone = ConfiguredZone();
    const auto names = Names();
    return std::binary_search(names.begin(), names.end(), zone) ? zone : NewerName(zone);
}

}  // namespace rlx
