#pragma once

#include <QPalette>

#include "uikit/look.h"

namespace rlx {

/// The colours of a page that has its own in the skin.
struct PageColours {
    QColor panel;    ///< ground of lists and fields
    QColor text;     ///< on panels and buttons
    QColor button;   ///< ground of buttons
    QColor caption;  ///< on the picture: labels
};

/// The palette of a page and of all widgets in it; marks of what is chosen are the look's.
QPalette PagePalette(const CLook& look, const PageColours& colours);

}  // namespace rlx
