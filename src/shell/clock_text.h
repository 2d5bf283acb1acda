#pragma once

#include <optional>
#include <string>

#include "shell/texts.h"

/// Times of day as the screens show them, in the form that the setting "twelvehour" asks for.
namespace rlx {

enum class ClockForm { kTwentyFour, kTwelve };

struct ClockTextPieces {
    std::u16string time;  ///< "07:05:09", or "7:05:09" in the twelve-hour form
    std::u16string half;  ///< "", or the string table's " AM" or " PM"
};

/// `hour` 0 to 23; without `second` the seconds are left out.
ClockTextPieces ClockText(int hour, int minute, std::optional<int> second, ClockForm form, const ITexts& texts);

}  // namespace rlx
