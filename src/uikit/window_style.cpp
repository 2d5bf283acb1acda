#include "uikit/window_style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace rlx {

namespace {

constexpr int kCheckBox = 18;     // pixels
constexpr int kSmallestFont = 9;  // pixels

bool Fits(const QFont& font, const QRect& rect, int flags, const QString& text) {
    const QRect taken = QFontMetrics(font).boundingRect(QRect(QPoint(0, 0), rect.size()), flags, text);
    const bool wraps = (flags & Qt::TextWordWrap) != 0;
    return taken.width() <= rect.width() && (!wraps || taken.height() <= rect.height());
}

/// The font at the size, or the next smaller one, at which the text has room.
QFont FittedFont(QFont font, const QRect& rect, int flags, const QString& text) {
    int size = QFontInfo(font).pixelSize();
    while (size > kSmallestFont && !Fits(font, rect, flags, text))
        font.setPixelSize(--size);
    return font;
}

void DrawCheckBox(QPainter& painter, const QStyleOption& option) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QPalette::ColorGroup group = enabled ? QPalette::Normal : QPalette::Disabled;
    const QColor line = option.palette.color(group, QPalette::Text);
    const QRectF box = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, 1));
    painter.setBrush(option.palette.color(group, QPalette::Base));
    painter.drawRoundedRect(box, 3, 3);
    if (option.state.testFlag(QStyle::State_On)) {
        const auto at = [&box](double x, double y) {
            return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
        };
        painter.setPen(QPen(line, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.43, 0.74), at(0.79, 0.27)});
    } else if (option.state.testFlag(QStyle::State_NoChange)) {
        painter.fillRect(box.adjusted(4, 4, -4, -4), line);
    }
    painter.restore();
}

bool IsReachedByKey(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

/// A button that stays pressed: in the colours of what is chosen, with a frame inside its edge.
void DrawPressedPanel(QPainter& painter, const QStyleOption& option) {
    const QColor text = option.palette.color(QPalette::HighlightedText);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(text, 1));
    painter.setBrush(option.palette.color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(QPen(text, IsReachedByKey(option) ? 3 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(2.5, 2.5, -2.5, -2.5), 2, 2);
    painter.restore();
}

/// Where the keys go, in the colour of the text: seen on every skin.
void DrawFocusRing(QPainter& painter, const QStyleOption& option, QPalette::ColorRole role) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(role), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 3, 3);
    painter.restore();
}

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

}  // namespace

CWindowStyle::CWindowStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int CWindowStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight) return kCheckBox;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

void CWindowStyle::drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                                const QString& text, QPalette::ColorRole role) const {
    const QFont before = painter->font();
    painter->setFont(FittedFont(before, rect, flags, text));
    const bool shortens = (flags & Qt::TextWordWrap) == 0 && !Fits(painter->font(), rect, flags, text);
    const int mnemonic = flags & (Qt::TextShowMnemonic | Qt::TextHideMnemonic);
    const QString shown =
        shortens ? painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width(), mnemonic) : text;
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, shown, role);
    painter->setFont(before);
}

void CWindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck) {
        DrawCheckBox(*painter, *option);
    } else if (element == PE_PanelButtonCommand && option->state.testFlag(State_On)) {
        DrawPressedPanel(*painter, *option);
    } else if (element == PE_FrameFocusRect && qobject_cast<const QAbstractItemView*>(widget) == nullptr) {
        DrawFocusRing(*painter, *option, QPalette::WindowText);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_FrameLineEdit && option->state.testFlag(State_HasFocus))
            DrawFocusRing(*painter, *option, QPalette::Text);
    }
}

void CWindowStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool isPush = element == CE_PushButton && button != nullptr;
    if (isPush && option->state.testFlag(State_On)) {
        QStyleOptionButton pressed = *button;
        pressed.palette.setColor(QPalette::ButtonText, button->palette.color(QPalette::HighlightedText));
        painter->save();
        painter->setFont(Bold(painter->font()));
        QProxyStyle::drawControl(element, &pressed, painter, widget);
        painter->restore();
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool isView = element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    if (isPush && IsReachedByKey(*option)) DrawFocusRing(*painter, *option, QPalette::ButtonText);
    if (isView && option->state.testFlag(State_HasFocus)) DrawFocusRing(*painter, *option, QPalette::Text);
}

void CWindowStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && IsReachedByKey(*option)) DrawFocusRing(*painter, *option, QPalette::ButtonText);
    if (control == CC_SpinBox && option->state.testFlag(State_HasFocus))
        DrawFocusRing(*painter, *option, QPalette::Text);
}

}  // namespace rlx
