#include "shell/clock_text.h"

#include "base/number.h"
#include "shell/text_ids.h"

namespace rlx {

ClockTextPieces ClockText(int hour, int minute, std::optional<int> second, ClockForm form, const ITexts& texts) {
    ClockTextPieces pieces;
    if (form == ClockForm::kTwelve) {
        pieces.time = FormatInteger(hour % 12 == 0 ? 12 : hour % 12);
        pieces.half = texts.Text(hour < 12 ? kTextAm : kTextPm);
    } else {
        pieces.time = FormatTwoDigits(hour);
    }
    pieces.time += u":" + FormatTwoDigits(minute);
    if (second) pieces.time += u":" + FormatTwoDigits(*second);
    return pieces;
}

}  // namespace rlx
