// Sunrise and sunset beside libnova, for 200 shipped cities and every day of a year:
//   truth_sun DATA_FOLDER
// Prints a Markdown table for each model; fails when one is further off than its formulas allow.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "astro/night_test.h"
#include "base/text.h"
#include "map/night_shadow.h"
#include "map/solar_instant.h"
#include "places/city_list.h"
#include "places/gmt_offset.h"
#include "platform/posix/posix_file_system.h"
#include "truth/sun_table.h"

namespace rlx::truth {
namespace {

constexpr std::size_t kPlaces = 200;

struct SunCity {
    std::string name;
    Place place;
    RiseSetPlace panel;       ///< what the panel computes with
    double zoneSeconds = 0;   ///< of the standard time
    bool hasMinutes = false;  ///< in its offset
};

double NumberOf(const std::u16string& text) {
    return std::stod(ToUtf8(text));
}

SunCity CityOf(const CityFields& fields) {
    const GmtOffset gmt = std::stoi(ToUtf8(fields.gmt));
    const ClockOffset offset = SplitGmt(gmt);
    return {ToUtf8(fields.name),
            {NumberOf(fields.latitude), NumberOf(fields.longitude)},
            RiseSetPlaceOf(fields.latitude, fields.longitude, gmt),
            offset.hours * 3600.0 + offset.minutes * 60.0,
            offset.minutes != 0};
}

/// 200 cities at even steps by latitude, the first and the last among them, and all others beyond 60 degrees.
std::vector<SunCity> Cities(const CityList& list) {
    std::vector<SunCity> all;
    for (const CityFields& fields : list.cities)
        all.push_back(CityOf(fields));
    std::stable_sort(all.begin(), all.end(),
                     [](const SunCity& a, const SunCity& b) { return a.place.latitude < b.place.latitude; });
    std::vector<SunCity> some;
    std::size_t next = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool isStep = i == next * (all.size() - 1) / (kPlaces - 1);
        next += isStep ? 1 : 0;
        if (isStep || std::abs(all[i].place.latitude) > 60.0) some.push_back(all[i]);
    }
    return some;
}

Told RiseSetModel(const RiseSetPlace& place, double zoneSeconds, int day) {
    const RiseSet sun = SunRiseAndSet(AddDays({kYear, 1, 1}, day), place);
    const double midnight = DayBegin(day) - zoneSeconds;
    if (sun.kind != DayKind::kNormal) return {sun.kind, {}, {}};
    return {sun.kind, midnight + sun.sunriseHours * 3600.0, midnight + sun.sunsetHours * 3600.0};
}

/// The night test of the map at one place: rows as fine as the places of the list, a ten-thousandth of a degree.
class CNightModel {
public:
    explicit CNightModel(const Place& place)
        : m_row(static_cast<int>(std::lround((90.0 - place.latitude) * 1e4))), m_longitude(place.longitude) {}

    Told DayOf(double noon) const {
        if (IsNight(noon)) return {DayKind::kPolarNight, {}, {}};
        Told told;
        if (IsNight(noon - kHalfDay)) told.rise = Edge(noon - kHalfDay, noon);
        if (IsNight(noon + kHalfDay)) told.set = Edge(noon + kHalfDay, noon);
        if (!told.rise && !told.set) told.kind = DayKind::kPolarDay;
        return told;
    }

private:
    static constexpr int kRows = 1800000;

    bool IsNight(double second) const {
        const SolarInstant at = SolarInstantAt(DateTimeOfSecondNumber(std::llround(second)));
        return IsNightAt(m_row, kRows, at.declination, kStandardAltitude, at.rightAscension, -m_longitude,
                         at.siderealTime, at.dayFraction);
    }

    double Edge(double night, double day) const {
        while (std::abs(day - night) > 1.0) {
            const double middle = (night + day) / 2.0;
            (IsNight(middle) ? night : day) = middle;
        }
        return day;
    }

    int m_row;
    double m_longitude;
};

class CSunTruth {
public:
    explicit CSunTruth(const CNovaSun& sun) : m_sun(sun) {}

    void Compare(const SunCity& city) {
        const Place whole{static_cast<double>(city.panel.latitude), static_cast<double>(city.panel.longitude)};
        const CNightModel nightModel(city.place);
        CTable& panel = city.hasMinutes ? panelWithMinutes : panelOfCity;
        Band& wholeBand = riseSet.BandOf(whole.latitude);
        Band& placeBand = night.BandOf(city.place.latitude);
        Band& panelBand = panel.BandOf(city.place.latitude);
        for (Band* band : {&wholeBand, &placeBand, &panelBand})
            ++band->places;
        for (int day = 0; day < 365; ++day) {
            const SunDay atWhole{m_sun, city.name, whole, day};
            const SunDay atPlace{m_sun, city.name, city.place, day};
            riseSet.Add(wholeBand, atWhole, RiseSetModel({city.panel.latitude, city.panel.longitude, 0.0}, 0.0, day));
            night.Add(placeBand, atPlace, nightModel.DayOf(atPlace.truth.noon));
            panel.Add(panelBand, atPlace, RiseSetModel(city.panel, city.zoneSeconds, day));
        }
    }

    CTable riseSet{"Rise/set model, at whole degrees"};
    CTable night{"Night test of the map"};
    CTable panelOfCity{"Panel and sun details, zones of whole hours"};
    CTable panelWithMinutes{"Panel and sun details, zones with minutes"};

private:
    const CNovaSun& m_sun;
};

/// The darkened map of 360 by 180 pixels, the 21st of every month at two instants, pixel by pixel. `kWorst`: how far
/// from the horizon the Sun stands at most over a pixel of the wrong side, degrees.
bool CompareMap(const CNovaSun& sun) {
    constexpr double kWorst = 2.0;
    constexpr std::uint32_t kWhite = 0xFFFFFFFFU;
    int pixels = 0;
    int wrong = 0;
    double worst = 0.0;
    for (int i = 0; i < 24; ++i) {
        const DateTime at{{kYear, i / 2 + 1, 21}, i, 10 * i % 60, 0, 0};
        CBitmap map(360, 180, kWhite);
        ShadeNight(map, {360, 180, 0}, SolarInstantAt(at), 0);
        for (int y = 0; y < 179; ++y) {  // strips end before their last row, so the southernmost never darkens
            for (int x = 0; x < 360; ++x, ++pixels) {
                const double altitude = sun.Altitude({90.0 - y, x - 180.0}, static_cast<double>(SecondNumber(at)));
                if ((map.Row(y)[x] != kWhite) == (altitude < kStandardAltitude)) continue;
                ++wrong;
                worst = std::max(worst, std::abs(altitude - kStandardAltitude));
            }
        }
    }
    std::printf("\nThe darkened map: %d of %d pixels on the wrong side, %.2f° off the horizon at most.\n", wrong,
                pixels, worst);
    return worst < kWorst && wrong * 250 < pixels;
}

int Run(const std::string& folder) {
    CPosixFileSystem files;
    const auto list = ReadCityList(files, folder + "/cities.lst");
    if (!list || list->cities.size() < kPlaces) return 1;
    const CNovaSun sun(DayNumber({kYear - 1, 12, 28}) * 86400, DayNumber({kYear + 1, 1, 5}) * 86400);
    CSunTruth truth(sun);
    for (const SunCity& city : Cities(*list))
        truth.Compare(city);
    for (const CTable* table : {&truth.riseSet, &truth.night, &truth.panelOfCity, &truth.panelWithMinutes})
        table->Print();
    // The rise/set model leaves refraction out at the equator and takes the declination of noon; coordinates are cut to
    // whole degrees; an offset of h hours and m minutes is read as h.m hours.
    const bool isWithin = truth.riseSet.IsWithin(1.0, 0.2, 4.0) && truth.night.IsWithin(0.02, 0.02, 0.15) &&
                          truth.panelOfCity.IsWithin(2.0, 1.0, 12.0) && truth.panelWithMinutes.IsWithin(4.0, 1.0, 16.0);
    return CompareMap(sun) && isWithin ? 0 : 1;
}

}  // namespace
}  // namespace rlx::truth

int main(int count, char** words) {
    return count < 2 ? 2 : rlx::truth::Run(words[1]);
}
