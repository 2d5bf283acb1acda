#include "weather/ui/week_chart.h"

#include <QPainter>
#include <algorithm>

#include "base/number.h"
#include "places/text_ids.h"
#include "shell/fill_text.h"
#include "uikit/qt_text.h"
#include "weather/text_ids.h"
#include "weather/ui/fitted_text.h"

namespace rlx {

namespace {

constexpr double kRadius = 10;
constexpr int kBarOpacity = 90;     // of 255: the curves stay readable over them
constexpr int kChosenOpacity = 36;  // of 255

QColor Faded(QColor colour, int opacity) {
    colour.setAlpha(opacity);
    return colour;
}

}  // namespace

CWeekChart::CWeekChart(const ITexts& texts, const CLook& look, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_look(look) {
    setAccessibleName(ToQString(texts.Text(kTextWeek)));
}

void CWeekChart::Show(const WeekPicture& picture, std::size_t chosen) {
    m_picture = picture;
    m_chosen = chosen;
    update();
}

double CWeekChart::WidthOf(const QString& text) const {
    QFont smallest = font();
    smallest.setPixelSize(static_cast<int>(FontRange{0}.smallest));
    smallest.setBold(true);
    return QFontMetricsF(smallest).horizontalAdvance(text);
}

QString CWeekChart::Degrees(int value) const {
    return ToQString(FillText(m_texts.Text(kTextDegreesPlain), {FormatInteger(value)}));
}

CWeekChart::Frame CWeekChart::FrameOf() const {
    const double font = std::clamp(std::min(width(), height()) * 0.07, 9.0, 18.0);
    const double left = font * 2.6;
    const QRectF plot(left, font * 1.7, std::max(1.0, width() - left - font * 0.7),
                      std::max(1.0, height() - font * 3.6));
    return {plot, plot.width() / std::max<double>(1, static_cast<double>(m_picture.columns.size())), font};
}

std::optional<std::size_t> CWeekChart::DayAt(const QPoint& point) const {
    const Frame frame = FrameOf();
    const double column = (point.x() - frame.plot.left()) / frame.columns;
    if (!rect().contains(point) || column < 0 || column >= static_cast<double>(m_picture.columns.size())) return {};
    return static_cast<std::size_t>(column);
}

void CWeekChart::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.Colour(SkinKey::kWeatherFBBC));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    if (m_picture.columns.empty()) return;
    const Frame frame = FrameOf();
    painter.fillRect(QRectF(frame.plot.left() + static_cast<double>(m_chosen) * frame.columns, frame.plot.top(),
                            frame.columns, frame.plot.height()),
                     Faded(m_look.Colour(SkinKey::kWeatherDAYSC), kChosenOpacity));
    PaintBars(painter, frame);
    PaintScales(painter, frame);
    PaintCurve(painter, frame, &WeekColumn::low, m_look.Colour(SkinKey::kWeatherMOREC), Qt::DotLine);
    PaintCurve(painter, frame, &WeekColumn::high, m_look.Colour(SkinKey::kWeatherFBTC), Qt::SolidLine);
}

/// Degrees on the left, the day of the month under each column, the height of the bars above.
void CWeekChart::PaintScales(QPainter& painter, const Frame& frame) const {
    const auto& [plot, columns, font] = frame;
    painter.setPen(QPen(Faded(m_look.Colour(SkinKey::kWeatherSATC), kBarOpacity), 1));
    painter.drawLine(plot.topLeft(), plot.topRight());
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.setPen(m_look.Colour(SkinKey::kWeatherSATC));
    if (m_picture.topDegrees != m_picture.bottomDegrees) {
        const QRectF top(0, plot.top() - font * 0.7, plot.left() - font * 0.3, font * 1.4);
        PaintFitted(painter, top, Qt::AlignRight | Qt::AlignVCenter, Degrees(m_picture.topDegrees), {font});
        PaintFitted(painter, top.translated(0, plot.height()), Qt::AlignRight | Qt::AlignVCenter,
                    Degrees(m_picture.bottomDegrees), {font});
    }
    if (m_picture.topPrecipitation > 0) {
        const QString most =
            ToQString(FillText(m_texts.Text(kTextMillimetres), {FormatFixed(m_picture.topPrecipitation, 0)}));
        const QString named = ToQString(m_texts.Text(kTextPrecipitation)) + QStringLiteral(" ") + most;
        PaintFitted(painter, {plot.left(), 0, plot.width(), plot.top()}, Qt::AlignRight | Qt::AlignVCenter,
                    WidthOf(named) <= plot.width() ? named : most, {font});
    }
    for (std::size_t i = 0; i < m_picture.columns.size(); ++i) {
        painter.setPen(m_look.Colour(SkinKey::kWeatherDAYSC));
        const Date& date = m_picture.columns[i].date;
        const QString name = ToQString(m_texts.Text(kTextSunday + Weekday(date)));
        const QString day = WidthOf(name) < columns ? name : QString::number(date.day);
        if (WidthOf(day) > columns) continue;
        PaintFitted(painter, {plot.left() + static_cast<double>(i) * columns, plot.bottom() + 1, columns, font * 1.6},
                    Qt::AlignCenter, day, {font}, i == m_chosen);
    }
}

void CWeekChart::PaintBars(QPainter& painter, const Frame& frame) const {
    const QColor colour = Faded(m_look.Colour(SkinKey::kWeatherMOREC), kBarOpacity);
    for (std::size_t i = 0; i < m_picture.columns.size(); ++i) {
        if (!m_picture.columns[i].bar) continue;
        const double height = *m_picture.columns[i].bar * frame.plot.height();
        const double left = frame.plot.left() + (static_cast<double>(i) + 0.28) * frame.columns;
        painter.fillRect(QRectF(left, frame.plot.bottom() - height, frame.columns * 0.44, height), colour);
    }
}

void CWeekChart::PaintCurve(QPainter& painter, const Frame& frame, std::optional<double> WeekColumn::*member,
                            const QColor& colour, Qt::PenStyle style) const {
    const double thickness = std::clamp(frame.font * 0.16, 1.5, 3.0);
    for (const auto& run : CurveRuns(m_picture.columns, member)) {
        QPolygonF points;
        for (std::size_t i = 0; i < run.values.size(); ++i)
            points << QPointF(frame.plot.left() + (static_cast<double>(run.first + i) + 0.5) * frame.columns,
                              frame.plot.bottom() - run.values[i] * frame.plot.height());
        painter.setPen(QPen(colour, thickness, style, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(points);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        for (const auto& point : points)
            painter.drawEllipse(point, thickness * 1.6, thickness * 1.6);
    }
}

}  // namespace rlx
