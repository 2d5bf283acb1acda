#include "uikit/window_style.h"

#include <QPainter>
#include <QStyleOption>

namespace rlx {

namespace {

constexpr int kCheckBox = 18;  // pixels

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

/// A button that stays pressed: in the colours of what is chosen, with a frame inside its edge.
void DrawPressedPanel(QPainter& painter, const QStyleOption& option) {
    const QColor text = option.palette.color(QPalette::HighlightedText);
    const bool focus = option.state.testFlag(QStyle::State_HasFocus);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(text, 1));
    painter.setBrush(option.palette.color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(QPen(text, focus ? 2 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(2.5, 2.5, -2.5, -2.5), 2, 2);
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

void CWindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck) {
        DrawCheckBox(*painter, *option);
    } else if (element == PE_PanelButtonCommand && option->state.testFlag(State_On)) {
        DrawPressedPanel(*painter, *option);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void CWindowStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != CE_PushButton || button == nullptr || !option->state.testFlag(State_On)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionButton pressed = *button;
    pressed.palette.setColor(QPalette::ButtonText, button->palette.color(QPalette::HighlightedText));
    painter->save();
    painter->setFont(Bold(painter->font()));
    QProxyStyle::drawControl(element, &pressed, painter, widget);
    painter->restore();
}

}  // namespace rlx
