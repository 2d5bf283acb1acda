#include "map/city_sun.h"

#include <cmath>

#include "map/text_ids.h"

namespace rlx {
namespace {

constexpr double kHoursADay = 24.0;

RiseSet SunOf(const CityRecord& city, const Date& date, GmtOffset effectiveGmt) {
    return SunRiseAndSet(date, RiseSetPlaceOf(city.latitude, city.longitude, effectiveGmt));
}

/// Cut to the minute, as the texts of the model are.
std::u16string TimeOfDay(double hours, ClockForm form, const ITexts& texts) {
    if (!std::isfinite(hours)) return u"-";
    const double within = hours - kHoursADay * std::floor(hours / kHoursADay);
    const int hour = static_cast<int>(within);
    const int minute = static_cast<int>((within - hour) * 60.0);
    const ClockTextPieces pieces = ClockText(hour % 24, minute, {}, form, texts);
    return pieces.time + pieces.half;
}

}  // namespace

CitySun CitySunToday(const CityRecord& city, CCityTimes& times, const DateTime& now) {
    const ClockReading clock = times.WorldClock(city.index, now);
    const Date date{clock.year, clock.month, clock.day};
    return {date, clock.effectiveGmt, SunOf(city, date, clock.effectiveGmt)};
}

CitySun CitySunOn(const CityRecord& city, const Date& date) {
    const bool dst = IsDstActive(city.dstRule, {date, 0, 0, 0, 0}, date.year, DstPrecision::kDay);
    const GmtOffset effective = dst ? AddDaylightHours(city.gmt, city.dstRule.hours) : city.gmt;
    return {date, effective, SunOf(city, date, effective)};
}

std::u16string SunNote(DayKind kind, const ITexts& texts) {
    if (kind == DayKind::kPolarNight) return texts.Text(kTextSunDoesNotRise);
    return kind == DayKind::kPolarDay ? texts.Text(kTextSunDoesNotSet) : std::u16string();
}

SunTexts SunTextsOf(const RiseSet& sun, ClockForm form, const ITexts& texts) {
    SunTexts result{TimeOfDay(sun.sunriseHours, form, texts), TimeOfDay(sun.sunsetHours, form, texts),
                    FormatHours(sun.dayLengthHours), SunNote(sun.kind, texts)};
    if (sun.kind == DayKind::kPolarNight) result = {u"-", u"-", FormatHours(0.0), result.note};
    return result;
}

}  // namespace rlx
