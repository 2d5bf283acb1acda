#include "weather/ui/day_details.h"

#include <QPainter>
#include <algorithm>

#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "weather/text_ids.h"
#include "weather/ui/fitted_text.h"

namespace rlx {

namespace {

constexpr double kRadius = 10;
constexpr int kSmallestRow = 9;
constexpr int kLabelGap = 5;

}  // namespace

CDayDetails::CDayDetails(const ITexts& texts, const CLook& look, const CWeatherIcons& icons, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_look(look), m_icons(icons) {}

void CDayDetails::Show(const DayView& view) {
    m_view = view;
    const auto row = [this](int label, const QString& value) { return Row{ToQString(m_texts.Text(label)), value}; };
    m_rows = {row(kTextProbability, view.chance), row(kTextPrecipitation, view.precipitation),
              row(kTextWind, view.wind),          row(kTextHumidity, view.humidity),
              row(kTextSunrise, view.sunrise),    row(kTextSunset, view.sunset)};
    QStringList lines{view.name, view.condition};
    for (const auto& [label, value] : QList<Row>{row(kTextHigh, view.high), row(kTextLow, view.low)} + m_rows)
        lines << label + QStringLiteral(": ") + value;
    setAccessibleName(view.name);
    setAccessibleDescription(lines.join('\n'));
    update();
}

void CDayDetails::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.Colour(SkinKey::kWeatherCBBC));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    const double padding = std::clamp(std::min(width(), height()) * 0.05, 4.0, 24.0);
    const QRectF room = QRectF(rect()).adjusted(padding, padding, -padding, -padding);
    const bool beside = width() > height() * 1.5;
    const QRectF head = beside ? QRectF(room.left(), room.top(), room.width() * 0.42, room.height())
                               : QRectF(room.left(), room.top(), room.width(), room.height() * 0.36);
    PaintHead(painter, head);
    PaintRows(painter, beside ? room.adjusted(head.width() + padding, 0, 0, 0) : room.adjusted(0, head.height(), 0, 0));
}

/// The picture with high and low beside it, the condition in words below.
void CDayDetails::PaintHead(QPainter& painter, const QRectF& room) const {
    painter.setPen(m_look.Colour(SkinKey::kWeatherCBTC));
    const double words = std::clamp(room.height() * 0.26, 12.0, 34.0);
    const QRectF upper(room.left(), room.top(), room.width(), room.height() - words);
    const double icon = std::min(upper.height(), room.width() * 0.5);
    const double left = room.center().x() - icon;
    m_icons.Paint(painter, {left, upper.top(), icon, upper.height()}, m_view.icon);
    const QRectF degrees(left + icon * 1.08, upper.top(), room.right() - left - icon * 1.08, upper.height());
    PaintFitted(painter, QRectF(degrees.left(), degrees.top(), degrees.width(), degrees.height() * 0.56),
                Qt::AlignLeft | Qt::AlignBottom, m_view.high, {56}, true);
    PaintFitted(painter, degrees.adjusted(0, degrees.height() * 0.58, 0, 0), Qt::AlignLeft | Qt::AlignTop, m_view.low,
                {36});
    PaintFitted(painter, QRectF(room.left(), upper.bottom(), room.width(), words), Qt::AlignCenter, m_view.condition,
                {28});
}

double CDayDetails::WidthOf(const QString& text, int size, bool bold) const {
    QFont sized = font();
    sized.setPixelSize(size);
    sized.setBold(bold);
    return QFontMetricsF(sized).horizontalAdvance(text) + 1;
}

/// The largest size at which every line has room for its label and its value, so that all lines look alike.
int CDayDetails::RowSize(double width, int largest) const {
    const auto fits = [&](int size) {
        return std::ranges::all_of(m_rows, [&](const auto& row) {
            return WidthOf(row.label, size, false) + kLabelGap + WidthOf(row.value, size, true) <= width;
        });
    };
    int size = largest;
    while (size > kSmallestRow && !fits(size))
        --size;
    return size;
}

void CDayDetails::PaintRows(QPainter& painter, const QRectF& room) const {
    const double height = std::min(room.height() / static_cast<double>(m_rows.size()), 46.0);
    const int size = RowSize(room.width(), static_cast<int>(std::clamp(height * 0.62, 9.0, 24.0)));
    const FontRange range{static_cast<double>(size)};
    double top = room.top() + (room.height() - height * static_cast<double>(m_rows.size())) / 2;
    for (const auto& [label, value] : m_rows) {
        const QRectF line(room.left(), top, room.width(), height);
        const double right = std::min(line.width() * 0.75, WidthOf(value, size, true));
        painter.setPen(m_look.Colour(SkinKey::kWeatherSATC));
        PaintFitted(painter, line.adjusted(0, 0, -right - kLabelGap, 0), Qt::AlignLeft | Qt::AlignVCenter, label,
                    range);
        painter.setPen(m_look.Colour(SkinKey::kWeatherCBTC));
        PaintFitted(painter, line.adjusted(line.width() - right, 0, 0, 0), Qt::AlignRight | Qt::AlignVCenter, value,
                    range, true);
        top += height;
    }
}

}  // namespace rlx
