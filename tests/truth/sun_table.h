#pragma once

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include "astro/night_test.h"
#include "astro/rise_set.h"
#include "base/calendar.h"
#include "truth/nova_sun.h"

/// Days of the Sun as a model tells them, held against libnova, and a Markdown table of it. Times in seconds since
/// 1970, UTC.
namespace rlx::truth {

constexpr int kYear = 2026;
constexpr double kMinute = 60.0;  // seconds
constexpr double kHalfDay = 43200.0;
constexpr double kDay = 2.0 * kHalfDay;

/// Midnight in UTC; day 0 is 1 January.
inline double DayBegin(int day) {
    return static_cast<double>(DayNumber({kYear, 1, 1}) + day) * kDay;
}

/// What a model says of one day.
struct Told {
    DayKind kind = DayKind::kNormal;
    std::optional<double> rise, set;
};

/// One day of one place as libnova has it.
struct SunDay {
    const CNovaSun& sun;
    const std::string& name;
    Place place;
    int day = 0;
    SolarDay truth = sun.DayOf(place, DayBegin(day) + kHalfDay - place.longitude * 240.0, kStandardAltitude);
};

struct Band {
    const char* name = "";
    double from = 0.0;  ///< degrees of latitude, without sign
    int places = 0;
    int times = 0;
    double sum = 0.0;     ///< seconds
    double worst = 0.0;   ///< seconds
    double height = 0.0;  ///< degrees: how far from the horizon the Sun then stands at most
    std::string worstAt = {};
    int days = 0;
    int otherKind = 0;        ///< days that rise and set for one and not for the other
    double mostMissed = 0.0;  ///< degrees by which the Sun misses the horizon on them
};

class CTable {
public:
    explicit CTable(const char* name) : m_name(name) {}

    Band& BandOf(double latitude) {
        return *std::find_if(m_bands.rbegin(), m_bands.rend(),
                             [&](const Band& band) { return std::abs(latitude) >= band.from; });
    }

    void Add(Band& band, const SunDay& sunDay, const Told& told) {
        const SolarDay& truth = sunDay.truth;
        ++band.days;
        if (const double missed = MissedBy(told.kind, truth); missed > 0.0) {
            ++band.otherKind;
            band.mostMissed = std::max(band.mostMissed, missed);
        }
        if (told.rise) AddTime(band, sunDay, *told.rise, truth.rise, truth.noon - kHalfDay / 2);
        if (told.set) AddTime(band, sunDay, *told.set, truth.set, truth.noon + kHalfDay / 2);
    }

    void Print() const {
        std::printf(
            "\n| %s | places | times | mean | worst | worst at | off the horizon then | days | other "
            "kind | missed by |\n|---|---:|---:|---:|---:|---|---:|---:|---:|---:|\n",
            m_name);
        for (const Band& band : m_bands) {
            if (band.days == 0) continue;
            std::printf("| %s | %d | %d | %.2f min | %.2f min | %s | %.3f° | %d | %d | %.3f° |\n", band.name,
                        band.places, band.times, band.sum / std::max(band.times, 1) / kMinute, band.worst / kMinute,
                        band.worstAt.c_str(), band.height, band.days, band.otherKind, band.mostMissed);
        }
    }

    /// Degrees; minutes up to 60 degrees of latitude, where no sunrise grazes the horizon.
    bool IsWithin(double height, double missed, double minutes) const {
        return std::all_of(m_bands.begin(), m_bands.end(), [&](const Band& band) {
            return band.height < height && band.mostMissed < missed &&
                   (band.from >= 60.0 || band.worst < minutes * kMinute);
        });
    }

private:
    static double MissedBy(DayKind told, const SolarDay& truth) {
        const double night = std::min(truth.nightAltitudeBefore, truth.nightAltitudeAfter);
        const bool isPolarNight = truth.noonAltitude < kStandardAltitude;
        const bool isPolarDay = !truth.rise && !truth.set && !isPolarNight;
        const DayKind kind = isPolarNight ? DayKind::kPolarNight : isPolarDay ? DayKind::kPolarDay : DayKind::kNormal;
        if (kind == told) return 0.0;
        const bool isAtNoon = kind == DayKind::kPolarNight || told == DayKind::kPolarNight;
        return std::abs((isAtNoon ? truth.noonAltitude : night) - kStandardAltitude);
    }

    static void AddTime(Band& band, const SunDay& sunDay, double told, const std::optional<double>& truth,
                        double about) {
        const double time = about + std::remainder(told - about, kDay);
        band.height = std::max(band.height, std::abs(sunDay.sun.Altitude(sunDay.place, time) - kStandardAltitude));
        if (!truth) return;
        const double off = std::abs(time - *truth);
        ++band.times;
        band.sum += off;
        if (off <= band.worst) return;
        band.worst = off;
        const Date date = AddDays({kYear, 1, 1}, sunDay.day);
        band.worstAt = sunDay.name + ", " + std::to_string(date.day) + "/" + std::to_string(date.month);
    }

    const char* m_name;
    std::array<Band, 5> m_bands{{{"0° to 30°", 0.0},
                                 {"30° to 50°", 30.0},
                                 {"50° to 60°", 50.0},
                                 {"60° to 66.5°", 60.0},
                                 {"beyond 66.5°", 66.5}}};
};

}  // namespace rlx::truth
