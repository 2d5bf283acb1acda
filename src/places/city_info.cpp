#include "places/city_info.h"

#include "base/number.h"
#include "places/text_ids.h"

namespace rlx {

namespace {

std::u16string DayText(const Date& date) {
    return FormatInteger(date.day) + u"/" + FormatInteger(date.month) + u"/" + FormatInteger(date.year);
}

std::u16string PeriodText(const DstRule& rule, int year) {
    if (!rule.observes) return u"-";
    const DstPeriod period = PeriodOfYear(rule, year, DstPrecision::kHour);
    return DayText(period.start.date) + u" - " + DayText(period.end.date);
}

/// The date and the full hour that a clock shows, brought into range.
DateTime FullHourOf(const ClockReading& reading) {
    const std::int64_t days = DayNumber({reading.year, reading.month, reading.day});
    return DateTimeOfSecondNumber(days * 86400 + reading.hour * 3600);
}

}  // namespace

CitySunDetails SunDetailsOf(CCityDatabase& cities, CCityTimes& times, const ITexts& texts, CityIndex index,
                            const DateTime& now) {
    const CityRecord city = cities.Record(index).value_or(CityRecord());
    const int year = now.date.year;
    const bool observing =
        IsDstActive(city.dstRule, FullHourOf(times.WorldClock(index, now)), year, DstPrecision::kHour);
    CitySunDetails details{city.name, city.country, city.longitude, city.latitude, {}, {}, {}, {}};
    const TextId status = observing ? kTextObservingNow : kTextNotObservingNow;
    details.dstStatus = texts.Text(city.dstRule.observes ? status : kTextNeverObserving);
    details.dstStartEnd = PeriodText(city.dstRule, year);
    details.gmtText = GmtText(city.gmtText);
    if (observing) details.gmtText += u" + " + FormatInteger(city.dstRule.hours) + u"h (DST)";
    details.effectiveGmt = FormatInteger(observing ? AddDaylightHours(city.gmt, city.dstRule.hours) : city.gmt);
    return details;
}

std::u16string CityInfoText(const CitySunDetails& details, const ITexts& texts) {
    const auto line = [&texts](TextId label, const std::u16string& value) { return texts.Text(label) + u": " + value; };
    return line(kTextCity, details.name) + u"\n" + line(kTextCountry, details.country) + u"\nLong: " +
           details.longitude + u" Lat: " + details.latitude + u"\n" + line(kTextDaylightSaving, details.dstStatus) +
           u"\n" + line(kTextDstStartEnd, details.dstStartEnd) + u"\nGmt: " + details.gmtText;
}

MessageBox CityInformationBox(const CitySunDetails& details, const ITexts& texts) {
    MessageBox box{texts.Text(kTextCityInformation), CityInfoText(details, texts), BoxIcon::kNone, BoxButtons::kYesNo};
    box.question = texts.Text(kTextAskSunDetails);
    return box;
}

}  // namespace rlx
