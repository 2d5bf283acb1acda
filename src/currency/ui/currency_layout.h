#pragma once

#include <QRect>
#include <QSize>

#include "currency/ui/pair_panel.h"

namespace rlx {

/// Where things stand on a screen of a size, in pixels. A low one has its labels side by side.
struct CurrencyLayout {
    int left = 0;
    int width = 0;
    int top = 0;  ///< of the first panel
    int gap = 0;  ///< between the panels
    CPairPanel::Form panel;
    QRect card;  ///< empty: no room for one
    int footerHeight = 0;
    int buttonHeight = 0;
    int font = 0;  ///< of the footer
    bool low = false;
};

/// For a screen of that size: one column in the middle, or two with the rate card in the second; an upright screen has
/// the card below, where there is room. User-interface thread.
CurrencyLayout LayOutCurrencies(const QSize& size);

}  // namespace rlx
