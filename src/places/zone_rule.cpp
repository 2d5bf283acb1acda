#include "places/zone_rule.h"

#include <algorithm>
#include <limits>
#include <set>
#include <tuple>
#include <vector>

#include "base/number.h"

namespace rlx {

namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kMinutesPerDay = 1440;
constexpr int kMargin = 2 * kMinutesPerDay;  // no zone is further than this from UTC
constexpr int kFarAway = std::numeric_limits<int>::max() / 2;

/// From `minute` of the UTC year on, clocks run `offset` minutes east of UTC.
struct Change {
    int minute = 0;
    int offset = 0;
};

/// Minutes `from` up to but not including `to`.
struct Span {
    int from = 0;
    int to = 0;
};

/// One offset and one period of daylight saving in a year. Start in standard, end in daylight minutes of the year; an
/// end of 0 is the end of the year.
struct Rule {
    int offset = 0;  ///< minutes east of UTC in standard time
    int hours = 0;   ///< 0: no daylight saving
    int start = 0;
    int end = 0;

    auto Key() const { return std::tie(offset, hours, start, end); }
};

int Overlap(const Span& a, const Span& b) {
    return std::max(0, std::min(a.to, b.to) - std::max(a.from, b.from));
}

/// How many minutes of a span of standard time are daylight saving.
int DaylightMinutes(const Rule& rule, const Span& standard) {
    if (rule.hours == 0) return 0;
    const int end = rule.end == 0 ? 0 : rule.end - rule.hours * 60;
    if (rule.start < end) return Overlap(standard, {rule.start, end});
    return Overlap(standard, {rule.start, kFarAway}) + Overlap(standard, {-kFarAway, end});
}

/// The clocks of one zone in one year.
class CZoneYear {
public:
    CZoneYear(std::vector<Change> changes, int minutes) : m_changes(std::move(changes)), m_minutes(minutes) {}

    Rule BestRule() const {
        const auto cost = [this](const Rule& rule) { return std::tuple(WrongMinutes(rule), rule.hours, rule.Key()); };
        const auto candidates = Candidates();
        return *std::min_element(candidates.begin(), candidates.end(),
                                 [&cost](const Rule& a, const Rule& b) { return cost(a) < cost(b); });
    }

private:
    /// The part of the time after change `i` in which the clocks show the year.
    Span InYear(std::size_t i) const {
        const int offset = m_changes[i].offset;
        const int next = i + 1 < m_changes.size() ? m_changes[i + 1].minute : kFarAway;
        return {std::max(m_changes[i].minute, -offset), std::min(next, m_minutes - offset)};
    }

    int WrongMinutes(const Rule& rule) const {
        int wrong = 0;
        for (std::size_t i = 0; i < m_changes.size(); ++i) {
            const Span utc = InYear(i);
            if (utc.from >= utc.to) continue;
            const int length = utc.to - utc.from;
            const int daylight = DaylightMinutes(rule, {utc.from + rule.offset, utc.to + rule.offset});
            const int offset = m_changes[i].offset;
            if (rule.hours != 0 && offset == rule.offset + rule.hours * 60)
                wrong += length - daylight;
            else
                wrong += offset == rule.offset ? daylight : length;
        }
        return wrong;
    }

    std::set<int> OffsetsOfYear() const {
        std::set<int> offsets;
        for (std::size_t i = 0; i < m_changes.size(); ++i) {
            if (const Span utc = InYear(i); utc.from < utc.to) offsets.insert(m_changes[i].offset);
        }
        return offsets;
    }

    /// The whole hours of the wall clock around each change from one offset to another, and 0.
    std::set<int> ChangeHours(int from, int to) const {
        std::set<int> hours{0};
        for (std::size_t i = 1; i < m_changes.size(); ++i) {
            if (m_changes[i - 1].offset != from || m_changes[i].offset != to) continue;
            const int wall = m_changes[i].minute + from;
            if (wall < 0 || wall >= m_minutes) continue;
            hours.insert(wall / 60 * 60);
            hours.insert((wall + 59) / 60 * 60);
        }
        return hours;
    }

    std::vector<Rule> Candidates() const {
        const std::set<int> offsets = OffsetsOfYear();
        std::vector<Rule> candidates;
        for (const int standard : offsets) {
            candidates.push_back({standard});
            for (const int daylight : offsets) {
                if (daylight <= standard || (daylight - standard) % 60 != 0) continue;
                for (const int start : ChangeHours(standard, daylight)) {
                    for (const int end : ChangeHours(daylight, standard)) {
                        if (start != end) candidates.push_back({standard, (daylight - standard) / 60, start, end});
                    }
                }
            }
        }
        return candidates;
    }

    std::vector<Change> m_changes;
    int m_minutes;
};

/// Whole hours as they are, all else as hours times 100 plus minutes with one sign.
std::optional<std::u16string> OffsetText(int minutes) {
    const int hours = minutes / 60;
    const int rest = minutes % 60;
    if (rest != 0 && hours == 0) return std::nullopt;
    return FormatInteger(rest == 0 ? hours : hours * 100 + rest);
}

std::optional<RuleFields> FieldsOf(const Rule& rule) {
    const auto gmt = OffsetText(rule.offset);
    if (!gmt) return std::nullopt;
    if (rule.hours == 0) return RuleFields{*gmt, {u"0", u"0", u"0", u"0", u"0"}};
    const auto day = [](int minute) { return FormatInteger(minute / kMinutesPerDay + 1); };
    const auto hour = [](int minute) { return FormatInteger(minute % kMinutesPerDay / 60); };
    return RuleFields{*gmt,
                      {FormatInteger(rule.hours), day(rule.start), hour(rule.start), day(rule.end), hour(rule.end)}};
}

std::optional<Rule> FitRule(ITimeZones& zones, std::string_view zone, int year) {
    const std::int64_t begin = SecondNumber({{year, 1, 1}, 0, 0, 0, 0});
    const std::int64_t end = SecondNumber({{year + 1, 1, 1}, 0, 0, 0, 0});
    constexpr std::int64_t kAround = std::int64_t{kMargin} * kSecondsPerMinute;
    const auto offsets = zones.Offsets(zone, begin - kAround, end + kAround);
    if (!offsets || offsets->empty()) return std::nullopt;
    std::vector<Change> changes;
    for (const OffsetChange& change : *offsets)
        changes.push_back(
            {static_cast<int>((change.second - begin) / kSecondsPerMinute), change.offset / kSecondsPerMinute});
    return CZoneYear(std::move(changes), static_cast<int>((end - begin) / kSecondsPerMinute)).BestRule();
}

}  // namespace

std::optional<RuleFields> RuleOfZone(ITimeZones& zones, std::string_view zone, const Date& day) {
    constexpr std::int64_t kTwelveMonths = std::int64_t{365} * kMinutesPerDay * kSecondsPerMinute;
    const std::int64_t from = SecondNumber({day, 0, 0, 0, 0});
    const auto ahead = zones.Offsets(zone, from, from + kTwelveMonths);
    if (!ahead || ahead->empty()) return std::nullopt;
    if (ahead->size() == 1) return FieldsOf({ahead->front().offset / kSecondsPerMinute});
    const auto rule = FitRule(zones, zone, day.year);
    return rule ? FieldsOf(*rule) : std::nullopt;
}

}  // namespace rlx
