#pragma once

#include <QAbstractButton>

#include "places/city_times.h"
#include "uikit/look.h"
#include "uikit/still_picture.h"

namespace rlx {

/// The clock beside the map: analog where there is room, digital time, city and date. A button: pressing it chooses
/// among the clocks. User-interface thread.
class CMapClock : public QAbstractButton {
    Q_OBJECT

public:
    explicit CMapClock(const CLook& look, QWidget* parent = nullptr);

    /// `date` stands where the long form of the date finds no room.
    void Show(const ClockReading& reading, const QString& time, const QString& date);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// What the still part depends on, but for the look.
    struct Still {
        bool focus;
        bool face;
        bool operator==(const Still&) const = default;
    };

    void PaintStill(QPainter& painter, const Still& still) const;
    void PaintTall(QPainter& painter, const QRectF& area) const;
    void PaintFlat(QPainter& painter, const QRectF& area) const;
    void PaintHands(QPainter& painter, const QRectF& face) const;
    QRectF Inside() const;
    QRectF Face() const;
    QString DateFor(double width, double height, const QFont& font) const;

    const CLook& m_look;
    CStillPicture<Still> m_still;
    ClockReading m_reading;
    QString m_time;
    QString m_date;
    QString m_longDate;
};

}  // namespace rlx
