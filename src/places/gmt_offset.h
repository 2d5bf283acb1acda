#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Offsets from GMT as the city list writes them. Pure functions, any thread.
namespace rlx {

/// From -100 to 100 whole hours; any other value is hours times 100 plus minutes, both with the sign of the value
/// (530 is +5 h 30 min, -330 is -3 h 30 min, 100 is a hundred hours, 101 is 1 h 01 min).
using GmtOffset = std::int32_t;

/// An offset in hours and minutes, each with its own sign: what a clock lies ahead of GMT.
struct ClockOffset {
    int hours = 0;
    int minutes = 0;

    friend bool operator==(const ClockOffset&, const ClockOffset&) = default;
};

/// True for the form without minutes.
bool IsWholeHours(GmtOffset offset);

ClockOffset SplitGmt(GmtOffset offset);

/// The offset with `hours` of daylight saving on top, added in the form that the offset has (930 and 1 give 1030). A
/// sum that no `GmtOffset` can hold becomes the nearest one that can.
GmtOffset AddDaylightHours(GmtOffset offset, int hours);

/// An offset for reading, made of the characters of the stored text as they are: with fewer than three an "h" follows
/// ("5" gives "5h"), else an "h" stands before the last two ("530" gives "5h30", "-10" gives "-h10").
std::u16string GmtText(std::u16string_view storedOffset);

}  // namespace rlx
