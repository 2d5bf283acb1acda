#pragma once

#include <array>
#include <optional>
#include <string>

#include "base/calendar.h"
#include "places/city_file.h"
#include "platform/time_zones.h"
#include "shell/texts.h"

namespace rlx {

enum class CityField {
    kName,
    kCountry,
    kLongitude,
    kLatitude,
    kZone,
    kGmt,
    kDstHours,
    kStartDay,
    kStartHour,
    kEndDay,
    kEndHour,
};
inline constexpr std::size_t kCityFields = 11;

/// A city as a person types it: one text for each `CityField`.
class CCityDraft {
public:
    CCityDraft() = default;

    /// The offset becomes readable ("5:30"), a missing zone empty.
    explicit CCityDraft(const CityFields& city);

    std::u16string& operator[](CityField field) { return m_texts[static_cast<std::size_t>(field)]; }
    const std::u16string& operator[](CityField field) const { return m_texts[static_cast<std::size_t>(field)]; }

private:
    std::array<std::u16string, kCityFields> m_texts;
};

/// What is wrong with a draft: where, and a sentence that says so.
struct CityFault {
    CityField field = CityField::kName;
    std::u16string text;
};

/// The outcome of a check: the line of the file, or the first fault.
struct CheckedCity {
    CityFields city;
    std::optional<CityFault> fault;
};

/// Checks every field; blanks around them do not count. `before`: the city that is being changed, whose zone may stay
/// even when the system does not know it; null for a new one.
CheckedCity CheckCity(const CCityDraft& draft, const CityFields* before, ITimeZones& zones, const ITexts& texts);

/// Fills offset and daylight saving from the zone of the draft, for the year of `day`. False when the system knows no
/// such zone; the draft is then as it was.
bool FillFromZone(CCityDraft& draft, ITimeZones& zones, const Date& day);

/// "Daylight saving in 2026: 29/3 2:00 to 25/10 3:00", or that there is none; empty while the numbers are wrong.
std::u16string DaylightText(const CCityDraft& draft, int year, const ITexts& texts);

}  // namespace rlx
