#include "weather/ui/forecast_origin.h"

#include <QPainter>
#include <algorithm>

#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "weather/text_ids.h"
#include "weather/ui/fitted_text.h"
#include "weather/weather_text.h"

namespace rlx {

CForecastOrigin::CForecastOrigin(const ITexts& texts, const CLook& look, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_look(look) {}

QString CForecastOrigin::Text(int id) const {
    return ToQString(m_texts.Text(id));
}

void CForecastOrigin::Show(const PlaceForecast& forecast, bool notUpdated) {
    m_marks.clear();
    m_issued.clear();
    m_source.clear();
    if (forecast.stored) {
        const CWeatherTexts texts(m_texts, TemperatureUnit::kCelsius);
        if (forecast.freshness.stale) m_marks << Text(kTextStale);
        if (notUpdated) m_marks << Text(kTextNotUpdated);
        if (IsSample(forecast.stored->forecast)) m_marks << Text(kTextSample);
        m_issued = ToQString(texts.Issued(forecast.stored->forecast));
        m_source = forecast.IsOver() ? Text(kTextDaysGone) : ToQString(texts.Source(forecast.stored->forecast));
    }
    setAccessibleDescription((m_marks + QStringList{m_issued, m_source}).join('\n'));
    setToolTip(m_source);
    update();
}

void CForecastOrigin::SetTwoLines(bool on) {
    m_twoLines = on;
    update();
}

void CForecastOrigin::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = height() / (m_twoLines ? 2.0 : 1.0);
    const double size = std::clamp(line * 0.78, 9.0, 16.0);
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(size));
    painter.setFont(font);
    double left = 0;
    for (const QString& mark : m_marks) {
        const QRectF chip(left, height() - line + 1, painter.fontMetrics().horizontalAdvance(mark) + size, line - 2);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_look.Accent());
        painter.drawRoundedRect(chip, line / 4, line / 4);
        painter.setPen(m_look.AccentText());
        painter.drawText(chip, Qt::AlignCenter, mark);
        left = chip.right() + size * 0.5;
    }
    painter.setPen(m_look.Colour(SkinKey::kWeatherSATC));
    if (m_twoLines) {
        PaintFitted(painter, {0, 0, static_cast<double>(width()), line}, Qt::AlignVCenter, m_issued, {size});
        PaintFitted(painter, {left, line, width() - left, line}, Qt::AlignVCenter, m_source, {size});
    } else {
        PaintFitted(painter, {left, 0, width() - left, line}, Qt::AlignVCenter,
                    m_issued.isEmpty() ? m_source : m_issued + QStringLiteral(", ") + m_source, {size});
    }
}

}  // namespace rlx
