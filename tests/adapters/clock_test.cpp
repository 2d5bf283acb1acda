#include <cstdlib>

#include "platform/posix/system_clock.h"

namespace rlx {
namespace {

/// Sets TZ and puts the old value back.
class CZone {
public:
    explicit CZone(const char* zone) {
        if (const char* old = std::getenv("TZ")) m_old = old;
        setenv("TZ", zone, 1);
    }
    ~CZone() { m_old ? setenv("TZ", m_old->c_str(), 1) : unsetenv("TZ"); }
    CZone(const CZone&) = delete;
    CZone& operator=(const CZone&) = delete;

private:
    std::optional<std::string> m_old;
};

TEST(SystemClock, TheBiasIsThatOfStandardTimeAllYear) {
    // Rules in full, so that no zone files are needed; the last row counts its winter as the exception.
    const struct {
        const char* zone;
        int bias;
    } rows[] = {{"UTC0", 0},
                {"CET-1CEST,M3.5.0,M10.5.0/3", -60},
                {"EST5EDT,M3.2.0,M11.1.0", 300},
                {"AEST-10AEDT,M10.1.0,M4.1.0/3", -600},
                {"<+0545>-5:45", -345},
                {"<-0330>3:30<-0230>,M3.2.0,M11.1.0", 210},
                {"IST-1GMT0,M10.5.0,M3.5.0/1", 0}};
    for (const auto& row : rows) {
        const CZone zone(row.zone);
        EXPECT_EQ(CSystemClock().StandardBias(), row.bias) << row.zone;
    }
}

TEST(SystemClock, ShowsTheTimeOfItsZone) {
    std::int64_t utc = 0;
    {
        const CZone zone("UTC0");
        utc = SecondNumber(CSystemClock().Now());
    }
    const CZone zone("<+1345>-13:45");
    const DateTime local = CSystemClock().Now();
    EXPECT_TRUE(IsValid(local));
    const std::int64_t ahead = SecondNumber(local) - utc;
    EXPECT_GE(ahead, 13 * 3600 + 45 * 60);
    EXPECT_LT(ahead, 14 * 3600);
}

TEST(SystemClock, KnowsWhenItShowsATime) {
    const CZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    const struct {
        const char* what;
        DateTime local;
        DateTime utc;
    } rows[] = {{"winter", {{2026, 1, 1}, 0, 30, 0, 0}, {{2025, 12, 31}, 23, 30, 0, 0}},
                {"summer", {{2026, 7, 1}, 12, 0, 5, 0}, {{2026, 7, 1}, 10, 0, 5, 0}},
                {"just before it goes forward", {{2026, 3, 29}, 1, 59, 59, 0}, {{2026, 3, 29}, 0, 59, 59, 0}},
                {"left out", {{2026, 3, 29}, 2, 30, 0, 0}, {{2026, 3, 29}, 1, 30, 0, 0}},
                {"twice", {{2026, 10, 25}, 2, 30, 0, 0}, {{2026, 10, 25}, 0, 30, 0, 0}},
                {"just after it went back", {{2026, 10, 25}, 3, 0, 0, 0}, {{2026, 10, 25}, 2, 0, 0, 0}}};
    for (const auto& row : rows)
        EXPECT_EQ(CSystemClock().UtcOf(row.local), row.utc) << row.what;
}

}  // namespace
}  // namespace rlx
