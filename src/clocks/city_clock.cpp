#include "clocks/city_clock.h"

#include <cstdint>
#include <limits>
#include <set>
#include <vector>

namespace rlx {

namespace {

GmtOffset OffsetAt(const CityZone& city, const DateTime& device) {
    const bool dst = IsDstActive(city.rule, device, device.date.year, DstPrecision::kHour);
    return dst ? AddDaylightHours(city.gmt, city.rule.hours) : city.gmt;
}

ClockOffset ReferenceAt(const DeviceZone& zone, const DateTime& device) {
    return zone.bias ? ReferenceOfBias(*zone.bias) : SplitGmt(OffsetAt(zone.home, device));
}

/// Second number of what the clock shows. An hour 24 runs on into the next day.
std::int64_t Shown(GmtOffset gmt, const ClockOffset& reference, const DateTime& device) {
    const CityTime time = CityTimeOf(gmt, reference, device);
    const std::int64_t minutes = time.hour * 60 + time.minute;
    return DayNumber(CityDateOf(gmt, reference, device)) * 86400 + minutes * 60 + time.second;
}

std::int64_t ShownAt(const CityZone& city, const DeviceZone& zone, const DateTime& device) {
    return Shown(OffsetAt(city, device), ReferenceAt(zone, device), device);
}

/// The offsets that a clock has in summer and winter.
std::vector<GmtOffset> OffsetsOf(const CityZone& city) {
    if (!city.rule.observes) return {city.gmt};
    return {city.gmt, AddDaylightHours(city.gmt, city.rule.hours)};
}

std::vector<ClockOffset> ReferencesOf(const DeviceZone& zone) {
    if (zone.bias) return {ReferenceOfBias(*zone.bias)};
    std::vector<ClockOffset> references;
    for (const GmtOffset offset : OffsetsOf(zone.home))
        references.push_back(SplitGmt(offset));
    return references;
}

/// What the device's clock would show under each pair of offsets that city and device may have, earliest first.
std::set<std::int64_t> Candidates(const CityZone& city, const DeviceZone& zone, const DateTime& shown) {
    const std::int64_t wanted = SecondNumber(shown);
    std::set<std::int64_t> candidates;
    for (const GmtOffset gmt : OffsetsOf(city)) {
        for (const ClockOffset& reference : ReferencesOf(zone))
            candidates.insert(wanted - (Shown(gmt, reference, shown) - wanted));
    }
    return candidates;
}

/// How the device's clock shows a time on a day when the home city's changes.
enum class OnDevice { kOnce, kNever, kTwice };

OnDevice OnDeviceClock(const DeviceZone& zone, std::int64_t second) {
    const DstRule& rule = zone.home.rule;
    if (zone.bias || !rule.observes) return OnDevice::kOnce;
    const int year = DateTimeOfSecondNumber(second).date.year;
    const std::int64_t moved = std::int64_t{rule.hours} * 3600;
    // A southern summer that began last year ends in this one.
    for (const int from : {year - 1, year}) {
        const DstPeriod period = PeriodOfYear(rule, from, DstPrecision::kHour);
        const std::int64_t start = SecondNumber(period.start);
        const std::int64_t end = SecondNumber(period.end);
        if (second >= start && second < start + moved) return OnDevice::kNever;
        if (second >= end - moved && second < end) return OnDevice::kTwice;
    }
    return OnDevice::kOnce;
}

/// A time that no clock shows: where the city's clock shows least beyond it.
DeviceMoment SkippedMoment(const CityZone& city, const DeviceZone& zone, const DateTime& shown) {
    const std::int64_t wanted = SecondNumber(shown);
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    std::int64_t found = wanted;
    for (std::int64_t candidate : Candidates(city, zone, shown)) {
        if (OnDeviceClock(zone, candidate) == OnDevice::kNever) candidate += zone.home.rule.hours * std::int64_t{3600};
        const std::int64_t beyond = ShownAt(city, zone, DateTimeOfSecondNumber(candidate)) - wanted;
        if (beyond <= 0 || beyond >= least) continue;
        least = beyond;
        found = candidate;
    }
    return {DateTimeOfSecondNumber(found), 0, TimeOnClock::kSkipped};
}

}  // namespace

DateTime CityTimeAt(const CityZone& city, const DeviceZone& zone, const DateTime& device) {
    return DateTimeOfSecondNumber(ShownAt(city, zone, device));
}

DeviceMoment DeviceTimeOf(const CityZone& city, const DeviceZone& zone, const DateTime& shown) {
    const std::int64_t wanted = SecondNumber(shown);
    std::vector<DeviceMoment> hits;
    for (const std::int64_t candidate : Candidates(city, zone, shown)) {
        const DateTime device = DateTimeOfSecondNumber(candidate);
        const OnDevice onDevice = OnDeviceClock(zone, candidate);
        if (onDevice != OnDevice::kNever && ShownAt(city, zone, device) == wanted) {
            hits.push_back({device, 0, TimeOnClock::kOnce});
        } else if (onDevice == OnDevice::kTwice &&
                   Shown(OffsetAt(city, device), SplitGmt(zone.home.gmt), device) == wanted) {
            hits.push_back({device, std::int64_t{zone.home.rule.hours} * 3600, TimeOnClock::kOnce});
        }
    }
    if (hits.empty()) return SkippedMoment(city, zone, shown);
    if (hits.size() > 1) hits.front().lies = TimeOnClock::kTwice;
    return hits.front();
}

}  // namespace rlx
