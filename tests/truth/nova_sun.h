#pragma once

#include <libnova/dynamical_time.h>
#include <libnova/precession.h>
#include <libnova/sidereal_time.h>
#include <libnova/solar.h>
#include <libnova/transform.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace rlx::truth {

/// Degrees, north and east positive.
struct Place {
    double latitude = 0.0;
    double longitude = 0.0;
};

/// The Sun over one place from one lower transit to the next, as libnova has it. Times in seconds since 1970, UTC.
struct SolarDay {
    double noon = 0.0;
    double noonAltitude = 0.0;  ///< of the Sun's centre, degrees, without refraction
    double nightAltitudeBefore = 0.0, nightAltitudeAfter = 0.0;
    std::optional<double> rise, set;  ///< the centre goes through the standard altitude
};

/// libnova's Sun, looked up once for every hour of a span of time and interpolated between (off by 1e-5 degrees).
class CNovaSun {
public:
    CNovaSun(std::int64_t begin, std::int64_t end) : m_begin(static_cast<double>(begin)) {
        for (std::int64_t second = begin; second <= end + kHour; second += kHour)
            m_hours.push_back(At(2440587.5 + static_cast<double>(second) / 86400.0));
    }

    /// Around the noon nearest to `about`.
    SolarDay DayOf(const Place& place, double about, double standardAltitude) const {
        SolarDay day;
        day.noon = Transit(place, Transit(place, about));
        day.noonAltitude = Altitude(place, day.noon);
        day.nightAltitudeBefore = Altitude(place, day.noon - kHalfDay);
        day.nightAltitudeAfter = Altitude(place, day.noon + kHalfDay);
        day.rise = Crossing(place, day.noon - kHalfDay, day.noon, standardAltitude);
        day.set = Crossing(place, day.noon + kHalfDay, day.noon, standardAltitude);
        return day;
    }

    /// Of the Sun's centre, degrees.
    double Altitude(const Place& place, double second) const {
        const Sun sun = Interpolated(second);
        ln_equ_posn object{sun.rightAscension, sun.declination};
        ln_lnlat_posn observer{place.longitude, place.latitude};
        ln_hrz_posn horizontal{};
        ln_get_hrz_from_equ_sidereal_time(&object, &observer, sun.sidereal, &horizontal);
        return horizontal.alt;
    }

private:
    static constexpr std::int64_t kHour = 3600;
    static constexpr double kHalfDay = 43200.0;
    static constexpr double kSecondsPerDegree = 240.0;

    struct Sun {
        double rightAscension = 0.0;  ///< degrees of the equinox of the date
        double declination = 0.0;     ///< degrees
        double sidereal = 0.0;        ///< hours at Greenwich
    };

    static Sun At(double julianDay) {
        ln_equ_posn atJ2000{};
        ln_equ_posn ofDate{};
        const double dynamical = ln_get_jde(julianDay);
        ln_get_solar_equ_coords(dynamical, &atJ2000);  // referred to the equinox of 2000
        ln_get_equ_prec(&atJ2000, dynamical, &ofDate);
        return {ofDate.ra, ofDate.dec, ln_get_apparent_sidereal_time(julianDay)};
    }

    Sun Interpolated(double second) const {
        const double hours = (second - m_begin) / kHour;
        const auto index = static_cast<std::size_t>(hours);
        const double part = hours - std::floor(hours);
        const Sun& a = m_hours.at(index);
        const Sun& b = m_hours.at(index + 1);
        return {a.rightAscension + part * std::remainder(b.rightAscension - a.rightAscension, 360.0),
                a.declination + part * (b.declination - a.declination),
                a.sidereal + part * (1.0 + std::remainder(b.sidereal - a.sidereal - 1.0, 24.0))};
    }

    double Transit(const Place& place, double about) const {
        const Sun sun = Interpolated(about);
        const double hourAngle = std::remainder(sun.sidereal * 15.0 + place.longitude - sun.rightAscension, 360.0);
        return about - hourAngle * kSecondsPerDegree;
    }

    std::optional<double> Crossing(const Place& place, double low, double high, double standardAltitude) const {
        if (Altitude(place, low) >= standardAltitude || Altitude(place, high) < standardAltitude) return std::nullopt;
        while (std::abs(high - low) > 0.1) {
            const double middle = (low + high) / 2.0;
            (Altitude(place, middle) < standardAltitude ? low : high) = middle;
        }
        return high;
    }

    double m_begin;
    std::vector<Sun> m_hours;
};

}  // namespace rlx::truth
