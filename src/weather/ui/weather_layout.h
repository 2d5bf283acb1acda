#pragma once

#include <QRect>
#include <array>
#include <vector>

namespace rlx {

/// Where the parts of the Weather screen stand.
struct WeatherLayout {
    std::array<QRect, 4> places;  ///< the buttons of the four places
    QRect view;                   ///< button between overview and day by day; empty where there is no room
    QRect unit;                   ///< button between °C and °F
    QRect update;
    QRect heading;  ///< name of the city; empty where there is no room
    QRect body;
    QRect origin;  ///< one line for marks, issue time and source, or two of the same height
    bool originInTwoLines = false;
};

/// Lays the screen out in `area`, from 200x140 pixels up. Parts do not overlap.
WeatherLayout LayOutWeather(const QRect& area);

/// Places for `count` days within `body`: columns where it is wide, else rows.
std::vector<QRect> LayOutDays(const QRect& body, std::size_t count);

/// The day-by-day view.
struct DetailLayout {
    QRect previous;  ///< buttons beside the name of the day
    QRect next;
    QRect name;
    QRect details;
    QRect chart;
};

DetailLayout LayOutDetail(const QRect& body);

}  // namespace rlx
