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
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

}  // namespace rlx
