#include "weather/wind.h"

#include "weather/text_ids.h"

namespace rlx {

int CompassPointText(int degrees) {
    static_assert(kTextWindNorthNorthWest - kTextWindNorth == 15, "the points follow each other in the table");
    const int around = ((degrees % 360) + 360) % 360;
    // A point reaches 11.25 degrees to both sides; quarters of a degree keep the sum whole.
    return kTextWindNorth + (around * 4 + 45) / 90 % 16;
}

}  // namespace rlx
