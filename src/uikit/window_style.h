#pragma once

#include <QProxyStyle>

namespace rlx {

/// The style of the window: Fusion, made to be read on every skin. Check boxes are large enough for a finger and, like
/// the ring around what the keys go to, in the colour of the text; buttons that stay pressed have the colours of what
/// is chosen. A text that its label or button has no room for is drawn smaller, down to a size that can still be read,
/// and shortened only then.
class CWindowStyle : public QProxyStyle {
public:
    CWindowStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                      const QString& text, QPalette::ColorRole role) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace rlx
