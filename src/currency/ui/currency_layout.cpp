#include "currency/ui/currency_layout.h"

#include <algorithm>

#include "currency/converter_pairs.h"

namespace rlx {

namespace {

constexpr int kSmallGap = 4;
constexpr int kLargeGap = 12;
constexpr int kLeastRow = 21;
constexpr int kMostRow = 44;
constexpr int kMostRowOfLarge = 72;
constexpr int kRowForRate = 34;
constexpr int kWidest = 640;
constexpr int kWidthForCard = 620;     // of a lying screen
constexpr int kWidestWithCard = 1120;  // both columns
constexpr int kLeastCard = 100;        // below the panels, its title and some rows high
constexpr int kButtonHeight = 32;
constexpr int kLowButtonHeight = 28;
constexpr int kLowScreen = 244;
constexpr int kTallScreen = 420;
constexpr int kFooterHeight = 44;
constexpr int kTallFooterHeight = 62;
constexpr int kFooterFont = 11;
constexpr int kTallFooterFont = 13;

/// One column in the middle, or two with the rate card in the second. An upright screen has it below, where there is
/// room.
void LayOutColumns(const QSize& size, CurrencyLayout& layout) {
    const int margin = layout.gap;
    if (layout.low || size.width() < kWidthForCard || size.width() < size.height()) {
        layout.width = std::min(size.width() - 2 * margin, kWidest);
        layout.left = (size.width() - layout.width) / 2;
        return;
    }
    const int both = std::min(size.width() - 2 * margin, kWidestWithCard);
    layout.left = (size.width() - both) / 2;
    layout.width = (both - kLargeGap) / 2;
    layout.card = QRect(layout.left + layout.width + kLargeGap, margin, layout.width, size.height() - 2 * margin);
}

}  // namespace

CurrencyLayout LayOutCurrencies(const QSize& size) {
    const bool tall = size.height() >= kTallScreen;
    CurrencyLayout layout;
    layout.low = size.height() < kLowScreen && size.width() > size.height();
    layout.top = layout.gap = tall ? kLargeGap : kSmallGap;
    layout.font = tall ? kTallFooterFont : kFooterFont;
    layout.buttonHeight = layout.low ? kLowButtonHeight : kButtonHeight;
    layout.footerHeight = layout.low ? kLowButtonHeight : (tall ? kTallFooterHeight : kFooterHeight);
    LayOutColumns(size, layout);
    layout.panel.padding = tall ? kLargeGap - 4 : kSmallGap;
    const auto pairs = static_cast<int>(kConverterPairs);
    const int room = (size.height() - layout.footerHeight - (pairs + 1) * layout.gap) / pairs;
    layout.panel.withRate = true;
    layout.panel.withRate = (room - layout.panel.Height()) / 2 >= kRowForRate;
    const int most = layout.card.isEmpty() ? kMostRow : kMostRowOfLarge;
    layout.panel.rowHeight = std::clamp((room - layout.panel.Height()) / 2, kLeastRow, most);
    if (!layout.card.isEmpty()) {
        // What is left over goes between the panels, so that both columns end together.
        const int rest = layout.card.height() - layout.footerHeight - pairs * layout.panel.Height();
        layout.gap = std::max(layout.gap, rest / pairs);
    } else if (tall) {
        const int top = layout.top + pairs * (layout.panel.Height() + layout.gap) + layout.footerHeight;
        const int rest = size.height() - top - layout.gap;
        if (rest >= kLeastCard) layout.card = QRect(layout.left, top, layout.width, rest);
    }
    return layout;
}

}  // namespace rlx
