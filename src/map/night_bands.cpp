#include "map/night_bands.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "astro/night_test.h"

namespace rlx {
namespace {

/// The night test of all rows of a map with what does not depend on the column done once.
///
/// A row is in night when the hour angle of the Sun over the column is wider than H, the row's hour angle of sunrise:
/// 0 where the Sun never rises, the half turn where it never sets. So the night rows of a column are those with H below
/// a bound that the column sets, and their shape follows from how H runs over the rows. With latitude p, declination d
/// and standard altitude h,
///     cos H = (sin h - sin d sin p) / (cos d cos p)
///     (cos H)' = (sin h sin p - sin d) / (cos d cos^2 p)
/// The numerator of the slope is linear in sin p. Its only zero is at sin p = sin d / sin h, and since sin h is
/// negative cos H rises below that latitude and falls above it. H therefore falls and then rises along the rows (one of
/// the two stretches may be empty): a valley. In each column the night rows are a stretch around the valley's lowest
/// row, or none, and on each side of that row the test changes its answer once at most, so a search that halves finds
/// both ends.
///
/// The order of the rows by H is looked at once for each instant; should rounding ever leave a dent in the valley, all
/// rows are tested.
class CRowSearch {
public:
    CRowSearch(int height, double declination) {
        const SunTerms sun(declination, kStandardAltitude);
        m_rows.reserve(static_cast<std::size_t>(height));
        for (int row = 0; row < height; ++row)
            m_rows.push_back(RowSunOf(row, height, sun));
        FindValley();
    }

    /// `hint` is where the band is looked for first: that of the column before lies close by.
    NightBand BandOf(double transit, double dayFraction, const NightBand& hint) const {
        const auto night = [&](int row) {
            return IsNight(m_rows[static_cast<std::size_t>(row)], transit, dayFraction);
        };
        const int last = static_cast<int>(m_rows.size()) - 1;
        if (!m_isValley) return Scan(last, night);
        if (!night(m_lowest)) return {};
        return {m_lowest - Reach(m_lowest, m_lowest - hint.top, [&](int rows) { return night(m_lowest - rows); }),
                m_lowest +
                    Reach(last - m_lowest, hint.bottom - m_lowest, [&](int rows) { return night(m_lowest + rows); })};
    }

private:
    static double OrderOf(const RowSun& row) {
        constexpr double kNever = -1.0;
        constexpr double kAlways = 1.0;
        if (row.kind == RowSun::Kind::kNight) return kNever;
        // Where sunrise and sunset fall together the test answers day, in every column.
        const bool rises = row.kind == RowSun::Kind::kRisesAndSets && row.halfDay > 0.0;
        return rises ? row.halfDay : kAlways;
    }

    void FindValley() {
        std::vector<double> order(m_rows.size());
        std::transform(m_rows.begin(), m_rows.end(), order.begin(), OrderOf);
        const auto lowest = std::min_element(order.begin(), order.end());
        m_lowest = static_cast<int>(lowest - order.begin());
        m_isValley =
            std::is_sorted(std::make_reverse_iterator(lowest), order.rend()) && std::is_sorted(lowest, order.end());
    }

    /// How many rows, at most `most`, the night reaches from the lowest row on: it is known to hold for 0 rows. Looks
    /// around `hint` in strides that double, then halves what is left: two tests when the hint is right.
    template <typename Night>
    static int Reach(int most, int hint, const Night& isNight) {
        int known = 0;
        int beyond = most + 1;
        int at = std::clamp(hint, 1, std::max(most, 1));
        for (int stride = 1; known + 1 < beyond; stride *= 2) {
            const bool night = isNight(at);
            (night ? known : beyond) = at;
            const bool wide = beyond - known > 2 * stride;
            at = !wide ? known + (beyond - known) / 2 : night ? known + stride : beyond - stride;
        }
        return known;
    }

    template <typename Night>
    static NightBand Scan(int last, const Night& isNight) {
        NightBand band;
        for (int row = 0; row <= last; ++row) {
            if (!isNight(row)) continue;
            if (band.top < 0) band.top = row;
            band.bottom = row;
        }
        return band;
    }

    std::vector<RowSun> m_rows;
    int m_lowest = 0;
    bool m_isValley = false;
};

constexpr int kColumnsBeyond = 2;

}  // namespace

int ColumnStep(const SolarInstant& instant) {
    return instant.month == 3 || instant.month == 9 ? 1 : 3;
}

double ColumnTransit(int column, int mapWidth, const SolarInstant& instant) {
    const double longitude = 180.0 - column * 360.0 / mapWidth;  // west positive
    return TransitFraction(instant.rightAscension, longitude, instant.siderealTime);
}

std::vector<NightBand> ComputeBands(const MapGeometry& geometry, const SolarInstant& instant) {
    const int width = geometry.MapWidth();
    if (width <= 0 || geometry.height <= 0) return {};
    const int step = ColumnStep(instant);
    const CRowSearch search(geometry.height, instant.declination);
    std::vector<NightBand> bands;
    bands.reserve(static_cast<std::size_t>(width / step) + kColumnsBeyond);
    NightBand hint;
    for (int column = 0; column < width + kColumnsBeyond; column += step) {
        bands.push_back(search.BandOf(ColumnTransit(column, width, instant), instant.dayFraction, hint));
        if (bands.back().top >= 0) hint = bands.back();
    }
    return bands;
}

}  // namespace rlx
