#include "places/city_times.h"

namespace rlx {

namespace {

bool IsActiveOn(const CityRecord& city, const Date& date, const DateTime& now) {
    return IsDstActive(city.dstRule, {date, 0, 0, 0, 0}, now.date.year, DstPrecision::kDay);
}

GmtOffset EffectiveOf(const CityRecord& city, bool dst) {
    return dst ? AddDaylightHours(city.gmt, city.dstRule.hours) : city.gmt;
}

}  // namespace

CCityTimes::CCityTimes(CCityDatabase& cities, const IClock& clock, const ITexts& texts, const ClockSettings& settings)
    : m_cities(cities), m_clock(clock), m_texts(texts), m_settings(settings) {}

CityRecord CCityTimes::City(CityIndex index) {
    CityRecord nobody;
    nobody.index = index;
    return m_cities.Record(index).value_or(nobody);
}

ClockOffset CCityTimes::Reference(const DateTime& now) {
    if (m_settings.syncZone != 0) return ReferenceOfBias(m_clock.StandardBias());
    const CityRecord home = City(m_settings.home);
    return SplitGmt(EffectiveOf(home, IsDstActive(home.dstRule, now, now.date.year, DstPrecision::kHour)));
}

GmtOffset CCityTimes::EffectiveGmt(CityIndex index, const DateTime& now) {
    return WorldClock(index, now).effectiveGmt;
}

ClockReading CCityTimes::WorldClock(CityIndex index, const DateTime& now) {
    return Read(1, City(index), Reference(now), now);
}

ClockReading CCityTimes::HomeClock(const DateTime& now) {
    return ReadHome(Reference(now), now);
}

std::array<ClockReading, 5> CCityTimes::AllClocks(const DateTime& now) {
    const ClockOffset reference = Reference(now);
    std::array<ClockReading, 5> readings;
    readings[kHomeSlot] = ReadHome(reference, now);
    for (int slot = 1; slot <= 4; ++slot) {
        const auto at = static_cast<std::size_t>(slot);
        readings[at] = Read(slot, City(m_settings.clocks[at - 1]), reference, now);
    }
    return readings;
}

ClockReading CCityTimes::ReadHome(const ClockOffset& reference, const DateTime& now) {
    return Read(kHomeSlot, City(m_settings.home), reference, now);
}

ClockReading CCityTimes::Read(int slot, const CityRecord& city, const ClockOffset& reference,
                              const DateTime& now) const {
    // The home clock of a device that shows the home city's time has its own offset on both sides.
    const bool isOwnReference = slot == kHomeSlot && m_settings.syncZone == 0;
    const Date standardDate = isOwnReference ? now.date : CityDateOf(city.gmt, reference, now);
    ClockReading reading;
    reading.slot = slot;
    reading.cityIndex = city.index;
    reading.name = city.name;
    reading.country = city.country;
    reading.gmt = city.gmt;
    reading.dst = IsActiveOn(city, standardDate, now);
    reading.effectiveGmt = EffectiveOf(city, reading.dst);
    const ClockOffset from = isOwnReference ? SplitGmt(reading.effectiveGmt) : reference;
    const CityTime time = CityTimeOf(reading.effectiveGmt, from, now);
    const Date date = CityDateOf(reading.effectiveGmt, from, now);
    reading.timeText = CityTimeText(time);
    reading.longDateText = CityDateText(date, true, m_texts);
    reading.dateText = slot == kHomeSlot ? reading.longDateText : CityDateText(date, false, m_texts);
    reading.hour = time.hour;
    reading.minute = time.minute;
    reading.second = time.second;
    reading.day = date.day;
    reading.month = date.month;
    reading.year = date.year;
    return reading;
}

}  // namespace rlx
