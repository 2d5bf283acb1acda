#pragma once

namespace rlx {

/// The text of the nearest of 16 compass points ("WSW"); `degrees` from north by east, any whole number.
int CompassPointText(int degrees);

}  // namespace rlx
