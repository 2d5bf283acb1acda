#include "map/ui/time_scrubber.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace rlx {
namespace {

constexpr int kSecondsADay = 86400;
constexpr int kDayStep = 900;  // seconds
constexpr int kEnd = 12;       // pixels beyond the ends of the bar, so that the handle stays within
constexpr double kHandle = 6;

int DaysInYear(int year) {
    return IsLeapYear(year) ? 366 : 365;
}

int SecondOfDay(const DateTime& time) {
    return time.hour * 3600 + time.minute * 60 + time.second;
}

DateTime AtSecond(const Date& date, int second) {
    return {date, second / 3600, second / 60 % 60, second % 60, 0};
}

}  // namespace

CTimeScrubber::CTimeScrubber(const CLook& look, QWidget* parent) : QWidget(parent), m_look(look) {
    setFocusPolicy(Qt::StrongFocus);
}

void CTimeScrubber::SetSpan(Span span) {
    m_span = span;
    update();
}

void CTimeScrubber::SetTime(const DateTime& time) {
    const double before = PlaceOf(Fraction());
    m_time = time;
    if (std::abs(PlaceOf(Fraction()) - before) > 0.2) update();
}

void CTimeScrubber::Step(int steps) {
    if (m_span == Span::kDay) {
        const int second = SecondOfDay(m_time) / kDayStep * kDayStep + steps * kDayStep;
        Choose(AddSeconds(AtSecond(m_time.date, 0), second));
    } else {
        Choose(AtSecond(AddDays(m_time.date, steps), SecondOfDay(m_time)));
    }
}

double CTimeScrubber::Fraction() const {
    if (m_span == Span::kDay) return static_cast<double>(SecondOfDay(m_time)) / kSecondsADay;
    return (DayOfYear(m_time.date) - 1.0) / DaysInYear(m_time.date.year);
}

double CTimeScrubber::PlaceOf(double fraction) const {
    return kEnd + fraction * (width() - 2 * kEnd);
}

/// To the minute or the day.
void CTimeScrubber::MoveTo(double x) {
    const double fraction = std::clamp((x - kEnd) / std::max(1, width() - 2 * kEnd), 0.0, 1.0);
    if (m_span == Span::kDay) {
        const int minute = std::min(1439, static_cast<int>(fraction * 1440));
        Choose(AtSecond(m_time.date, minute * 60));
    } else {
        const int days = DaysInYear(m_time.date.year);
        const int day = std::min(days - 1, static_cast<int>(fraction * days));
        Choose(AtSecond(AddDays({m_time.date.year, 1, 1}, day), SecondOfDay(m_time)));
    }
}

void CTimeScrubber::Choose(const DateTime& time) {
    m_time = time;
    update();
    emit Moved(time);
}

void CTimeScrubber::PaintTicks(QPainter& painter) const {
    QFont small = font();
    small.setPixelSize(9);
    painter.setFont(small);
    painter.setPen(m_look.PanelText());
    const int ticks = m_span == Span::kDay ? 24 : 12;
    const int every = m_span == Span::kDay ? (width() > 420 ? 2 : 3) : 1;
    for (int i = 0; i <= ticks; i += every) {
        // A month's number stands in the middle of the month, an hour's on its stroke.
        const bool month = m_span == Span::kYear;
        const QPointF at(PlaceOf(static_cast<double>(i) / ticks), height() * 0.5);
        painter.drawLine(at, at + QPointF(0, 3));
        if (month && i == ticks) break;
        const double shift = month ? (PlaceOf(1) - PlaceOf(0)) / ticks / 2 : 0;
        const QRectF text(at.x() + shift - 12, height() * 0.5 + 2, 24, height() * 0.5 - 2);
        painter.drawText(text, Qt::AlignHCenter | Qt::AlignVCenter, QString::number(month ? i + 1 : i));
    }
}

void CTimeScrubber::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), m_look.Card());
    PaintTicks(painter);
    const double y = height() * 0.3;
    painter.setPen(QPen(m_look.PanelText(), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(PlaceOf(0), y), QPointF(PlaceOf(1), y));
    if (hasFocus()) {
        painter.setPen(QPen(m_look.PanelText(), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    }
    painter.setPen(QPen(m_look.AccentText(), 2));
    painter.setBrush(m_look.Accent());
    painter.drawEllipse(QPointF(PlaceOf(Fraction()), y), kHandle, kHandle);
}

void CTimeScrubber::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) MoveTo(event->position().x());
}

void CTimeScrubber::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) MoveTo(event->position().x());
}

void CTimeScrubber::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Left) {
        Step(-1);
    } else if (event->key() == Qt::Key_Right) {
        Step(1);
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace rlx
