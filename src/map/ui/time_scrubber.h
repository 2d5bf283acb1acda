#pragma once

#include <QWidget>

#include "base/calendar.h"
#include "uikit/look.h"

namespace rlx {

/// The bar along the lower edge of the map: dragging moves the time of day, or the day of the year. User-interface
/// thread.
class CTimeScrubber : public QWidget {
    Q_OBJECT

public:
    enum class Span { kDay, kYear };

    explicit CTimeScrubber(const CLook& look, QWidget* parent = nullptr);

    void SetSpan(Span span);
    Span Shown() const { return m_span; }

    /// Puts the handle where that time of the device's clock stands.
    void SetTime(const DateTime& time);

    /// One step: a quarter of an hour or a day.
    void Step(int steps);

signals:
    /// The person chose another time.
    void Moved(const rlx::DateTime& time);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    double Fraction() const;
    double PlaceOf(double fraction) const;
    void MoveTo(double x);
    void Choose(const DateTime& time);
    void PaintTicks(QPainter& painter) const;

    const CLook& m_look;
    Span m_span = Span::kDay;
    DateTime m_time;
};

}  // namespace rlx
