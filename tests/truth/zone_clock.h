#pragma once

#include <compare>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

namespace rlx::truth {

constexpr int kHour = 3600;  // seconds
constexpr std::int64_t kDay = 24 * kHour;

/// At `utc` (seconds since 1970) a zone's clock goes from one offset (seconds east) to another.
struct ZoneChange {
    std::int64_t utc = 0;
    int from = 0;
    int to = 0;

    friend auto operator<=>(const ZoneChange&, const ZoneChange&) = default;
};

/// The folder of the tz database, as the C library takes it.
inline std::filesystem::path ZoneFolder() {
    const char* folder = std::getenv("TZDIR");
    return folder != nullptr ? folder : "/usr/share/zoneinfo";
}

/// One zone as the C library reads it, which shares no code with the reader of the programs. Changes the zone of the
/// process; one at a time.
class CZoneClock {
public:
    explicit CZoneClock(const std::string& zone) : m_isKnown(is_regular_file(ZoneFolder() / zone)) {
        setenv("TZ", (":" + zone).c_str(), 1);
        tzset();
    }

    bool IsKnown() const { return m_isKnown; }

    /// Seconds east.
    int OffsetAt(std::int64_t utc) const {
        const std::time_t time = utc;
        std::tm local{};
        localtime_r(&time, &local);
        return static_cast<int>(local.tm_gmtoff);
    }

    /// The changes from `begin` to `end`; of two within three hours that undo each other nothing is seen.
    std::vector<ZoneChange> Changes(std::int64_t begin, std::int64_t end) const {
        constexpr std::int64_t kStep = std::int64_t{3} * kHour;
        std::vector<ZoneChange> changes;
        int offset = OffsetAt(begin);
        for (std::int64_t utc = begin; utc < end; utc += kStep) {
            const int next = OffsetAt(utc + kStep);
            if (next != offset) changes.push_back(Between(utc, utc + kStep));
            offset = next;
        }
        return changes;
    }

private:
    ZoneChange Between(std::int64_t before, std::int64_t after) const {
        const int from = OffsetAt(before);
        const int to = OffsetAt(after);
        while (after - before > 1) {
            const std::int64_t middle = before + (after - before) / 2;
            (OffsetAt(middle) == from ? before : after) = middle;
        }
        return {after, from, to};
    }

    bool m_isKnown;
};

}  // namespace rlx::truth
