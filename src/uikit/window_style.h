#pragma once

#include <QProxyStyle>

namespace rlx {

/// The style of the window: Fusion, with check boxes large enough for a finger and outlined in the colour of the text,
/// so that they are seen on every skin, and
/// buttons that stay pressed in the colours of what is chosen.
class CWindowStyle : public QProxyStyle {
public:
    CWindowStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace rlx
