#include "places/city_draft.h"

#include <algorithm>
#include <cstdlib>

#include "base/number.h"
#include "base/text.h"
#include "places/dst_rule.h"
#include "places/gmt_offset.h"
#include "places/text_ids.h"
#include "places/zone_rule.h"
#include "shell/fill_text.h"

namespace rlx {

namespace {

constexpr std::u16string_view kNoZone = u"-";
constexpr char16_t kLastLatin1 = 0xFF;
constexpr int kFarthestOffset = 14;
constexpr int kMostDaylightHours = 3;
constexpr int kLastDay = 366;
constexpr int kLastHour = 23;

bool IsControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

/// The first character that a field cannot hold, whole even when it takes two units.
std::optional<std::u16string> StrangeCharacter(std::u16string_view text, std::u16string_view forbidden) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        const bool high = unit >= 0xD800 && unit < 0xDC00 && i + 1 < text.size();
        if (unit > kLastLatin1 || IsControl(unit) || forbidden.find(unit) != std::u16string_view::npos)
            return std::u16string(text.substr(i, high ? 2 : 1));
    }
    return std::nullopt;
}

/// Digits with one "." at most, a sign in front.
bool IsDegrees(std::u16string_view text, double limit) {
    const std::u16string_view digits = text.substr(text.find_first_of(u"+-") == 0 ? 1 : 0);
    const bool plain = digits.find_first_not_of(u"0123456789.") == std::u16string_view::npos &&
                       std::count(digits.begin(), digits.end(), u'.') <= 1 &&
                       digits.find_first_of(u"0123456789") != std::u16string_view::npos;
    return plain && std::abs(ParseNumber(text)) <= limit;
}

/// The `GmtOffset` of "5", "-3:30", "+5:30" or "530".
std::optional<std::u16string> OffsetOf(std::u16string_view text) {
    const std::size_t colon = text.find(u':');
    const std::u16string_view front = text.substr(0, colon);
    const auto whole = ParseWholeInteger(front, -9999, 9999);
    if (!whole) return std::nullopt;
    ClockOffset offset = SplitGmt(static_cast<GmtOffset>(*whole));
    if (colon != std::u16string_view::npos) {
        const std::u16string_view back = text.substr(colon + 1);
        const auto minutes = ParseWholeInteger(back, 0, 59);
        if (!minutes || back.size() != 2 || back.front() == u'+' || !IsWholeHours(static_cast<GmtOffset>(*whole)))
            return std::nullopt;
        offset = {static_cast<int>(*whole), static_cast<int>(front.starts_with(u'-') ? -*minutes : *minutes)};
    }
    const std::int64_t total = std::abs(offset.hours * std::int64_t{60} + offset.minutes);
    if (std::abs(offset.minutes) > 59 || total > std::int64_t{kFarthestOffset} * 60) return std::nullopt;
    if (offset.minutes == 0) return FormatInteger(offset.hours);
    if (offset.hours == 0) return std::nullopt;
    return FormatInteger(offset.hours * 100 + offset.minutes);
}

std::u16string ReadableOffset(std::u16string_view stored) {
    const ClockOffset offset = SplitGmt(ParseInteger(stored));
    if (offset.minutes == 0) return FormatInteger(offset.hours);
    return FormatInteger(offset.hours) + u":" + FormatTwoDigits(static_cast<int>(std::abs(offset.minutes)));
}

/// Checks the fields in their order and keeps the first fault.
class CChecker {
public:
    CChecker(const CCityDraft& draft, const ITexts& texts) : m_draft(draft), m_texts(texts) {}

    std::u16string Name(CityField field, TextId missing) {
        std::u16string text = Trim(m_draft[field]);
        if (text.empty()) Fail(field, m_texts.Text(missing));
        if (const auto strange = StrangeCharacter(text, u";:>"))
            Fail(field, FillText(m_texts.Text(kTextCityCharacter), {*strange}));
        if (text.size() > kLongestName)
            Fail(field, FillText(m_texts.Text(kTextNameTooLong), {FormatInteger(kLongestName)}));
        return text;
    }
    std::u16string Degrees(CityField field, double limit, TextId range) {
        std::u16string text = Trim(m_draft[field]);
        if (!IsDegrees(text, limit) || text.size() > kLongestName) Fail(field, m_texts.Text(range));
        return text.starts_with(u'+') ? text.substr(1) : text;
    }
    std::u16string Zone(const CityFields* before, ITimeZones& zones) {
        std::u16string text = Trim(m_draft[CityField::kZone]);
        if (text.empty()) return std::u16string(kNoZone);
        const bool stays = before != nullptr && before->zone == text;
        if (!stays && !zones.Offsets(ToUtf8(text), 0, 1))
            Fail(CityField::kZone, FillText(m_texts.Text(kTextZoneUnknown), {text}));
        return text;
    }
    std::u16string Offset() {
        const auto offset = OffsetOf(Trim(m_draft[CityField::kGmt]));
        if (!offset) Fail(CityField::kGmt, m_texts.Text(kTextGmtRange));
        return offset.value_or(u"0");
    }
    std::u16string Number(CityField field, int low, int high, TextId range) {
        const auto number = ParseWholeInteger(Trim(m_draft[field]), low, high);
        if (!number) Fail(field, m_texts.Text(range));
        return FormatInteger(number.value_or(0));
    }
    const std::optional<CityFault>& Fault() const { return m_fault; }

private:
    static constexpr std::size_t kLongestName = 100;

    void Fail(CityField field, std::u16string text) {
        if (!m_fault) m_fault = {field, std::move(text)};
    }

    const CCityDraft& m_draft;
    const ITexts& m_texts;
    std::optional<CityFault> m_fault;
};

/// A city without daylight saving needs no days of change.
std::array<std::u16string, 5> CheckRule(CChecker& check) {
    std::array<std::u16string, 5> dst{u"0", u"0", u"0", u"0", u"0"};
    dst[0] = check.Number(CityField::kDstHours, 0, kMostDaylightHours, kTextDstHoursRange);
    if (dst[0] == u"0") return dst;
    dst[1] = check.Number(CityField::kStartDay, 1, kLastDay, kTextDstDayRange);
    dst[2] = check.Number(CityField::kStartHour, 0, kLastHour, kTextDstHourRange);
    dst[3] = check.Number(CityField::kEndDay, 1, kLastDay, kTextDstDayRange);
    dst[4] = check.Number(CityField::kEndHour, 0, kLastHour, kTextDstHourRange);
    return dst;
}

std::u16string MomentText(const DateTime& time) {
    return FormatInteger(time.date.day) + u"/" + FormatInteger(time.date.month) + u" " + FormatInteger(time.hour) +
           u":00";
}

}  // namespace

CCityDraft::CCityDraft(const CityFields& city)
    : m_texts{city.name,
              city.country,
              city.longitude,
              city.latitude,
              city.zone == kNoZone ? u"" : city.zone,
              ReadableOffset(city.gmt),
              city.dst[0],
              city.dst[1],
              city.dst[2],
              city.dst[3],
              Trim(city.dst[4])} {}

CheckedCity CheckCity(const CCityDraft& draft, const CityFields* before, ITimeZones& zones, const ITexts& texts) {
    CChecker check(draft, texts);
    CheckedCity checked;
    CityFields& city = checked.city;
    city.name = check.Name(CityField::kName, kTextCityNameMissing);
    city.country = check.Name(CityField::kCountry, kTextCountryMissing);
    city.longitude = check.Degrees(CityField::kLongitude, 180, kTextLongitudeRange);
    city.latitude = check.Degrees(CityField::kLatitude, 90, kTextLatitudeRange);
    city.zone = check.Zone(before, zones);
    city.gmt = check.Offset();
    city.dst = CheckRule(check);
    checked.fault = check.Fault();
    return checked;
}

bool FillFromZone(CCityDraft& draft, ITimeZones& zones, const Date& day) {
    const auto rule = RuleOfZone(zones, ToUtf8(Trim(draft[CityField::kZone])), day);
    if (!rule) return false;
    draft[CityField::kGmt] = ReadableOffset(rule->gmt);
    constexpr std::array kFields = {CityField::kDstHours, CityField::kStartDay, CityField::kStartHour,
                                    CityField::kEndDay, CityField::kEndHour};
    for (std::size_t i = 0; i < kFields.size(); ++i)
        draft[kFields[i]] = rule->dst[i];
    return true;
}

std::u16string DaylightText(const CCityDraft& draft, int year, const ITexts& texts) {
    CChecker check(draft, texts);
    const auto dst = CheckRule(check);
    if (check.Fault()) return {};
    if (dst[0] == u"0") return texts.Text(kTextDaylightSaving) + u": " + texts.Text(kTextNeverObserving);
    const DstRule rule = ParseDstRule(dst[0] + u":" + dst[1] + u":" + dst[2] + u":" + dst[3] + u":" + dst[4]);
    const DstPeriod period = PeriodOfYear(rule, year, DstPrecision::kHour);
    return FillText(texts.Text(kTextDstPeriod),
                    {FormatInteger(year), MomentText(period.start), MomentText(period.end)});
}

}  // namespace rlx
