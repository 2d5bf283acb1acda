#include "clocks/clock_face.h"

namespace rlx {

namespace {

constexpr double kRadiusForHours = 14;
constexpr double kRadiusForMinutes = 48;
constexpr int kMarks = 60;

}  // namespace

ClockHands HandsAt(int hour, int minute, int second) {
    const double minutes = minute + second / 60.0;
    return {(hour % 12 + minutes / 60.0) * 30.0, minutes * 6.0, second * 6.0};
}

bool IsDayFace(int hour) {
    return hour >= 6 && hour < 18;
}

std::vector<ClockMark> MarksFor(double radius) {
    std::vector<ClockMark> marks;
    for (int i = 0; i < kMarks; ++i) {
        const double angle = i * 360.0 / kMarks;
        if (i % 15 == 0) {
            marks.push_back({angle, 0.78, 0.92, 0.045});
        } else if (i % 5 == 0) {
            if (radius >= kRadiusForHours) marks.push_back({angle, 0.83, 0.92, 0.028});
        } else if (radius >= kRadiusForMinutes) {
            marks.push_back({angle, 0.885, 0.92, 0.012});
        }
    }
    return marks;
}

}  // namespace rlx
