#pragma once

#include <vector>

/// The face of an analog clock as data: angles in degrees clockwise from twelve o'clock, lengths as parts of the face's
/// radius. Pure functions, any thread.
namespace rlx {

struct ClockHands {
    double hour = 0;    ///< moves smoothly with the minutes
    double minute = 0;  ///< moves smoothly with the seconds
    double second = 0;
};

/// `hour` 0 to 23, `minute` and `second` 0 to 59.
ClockHands HandsAt(int hour, int minute, int second);

/// The face is light from six in the morning to six in the evening and dark else.
bool IsDayFace(int hour);

struct ClockMark {
    double angle = 0;
    double from = 0;   ///< distance of its inner end from the centre
    double to = 0;     ///< distance of its outer end
    double width = 0;  ///< of the stroke
};

/// The marks that still can be told apart at that radius (pixels): quarters always, hours from 14, minutes from 48.
std::vector<ClockMark> MarksFor(double radius);

}  // namespace rlx
