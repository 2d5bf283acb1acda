#include "uikit/page_palette.h"

namespace rlx {

namespace {

constexpr int kHintOpacity = 165;      // of 255
constexpr int kDisabledOpacity = 110;  // of 255

QColor Faded(QColor colour, int opacity) {
    colour.setAlpha(opacity);
    return colour;
}

}  // namespace

QPalette PagePalette(const CLook& look, const PageColours& colours) {
    // Fusion derives the shades of frames from the button's colour.
    QPalette palette(colours.button, colours.panel);
    for (const auto role : {QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colours.text);
        palette.setColor(QPalette::Disabled, role, Faded(colours.text, kDisabledOpacity));
    }
    palette.setColor(QPalette::WindowText, colours.caption);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Faded(colours.caption, kDisabledOpacity));
    palette.setColor(QPalette::PlaceholderText, Faded(colours.text, kHintOpacity));
    palette.setColor(QPalette::Base, colours.panel);
    palette.setColor(QPalette::AlternateBase, colours.panel);
    palette.setColor(QPalette::ToolTipBase, colours.panel);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::Highlight, look.Accent());
    palette.setColor(QPalette::HighlightedText, look.AccentText());
    return palette;
}

}  // namespace rlx
