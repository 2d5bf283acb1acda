#pragma once

#include <QColor>
#include <QObject>
#include <QPainter>
#include <QRect>

namespace rlx {

enum class LookBackground { kClocks };

/// The colours of one kind of clock, the home clock or the others.
struct ClockColours {
    QColor digital;
    QColor date;
    QColor city;
    QColor second;
    QColor hands;
};

/// What every screen asks for its colours and backgrounds. User-interface thread.
class CLook : public QObject {
    Q_OBJECT

public:
    explicit CLook(QObject* parent = nullptr) : QObject(parent) {}

    ClockColours HomeClock() const;
    ClockColours OtherClocks() const;

    QColor Bar() const;      ///< ground of title bar and screen row
    QColor BarText() const;  ///< on the bar, and on cards
    QColor Accent() const;   ///< marks what is chosen or focused
    QColor Card() const;     ///< ground of a card, translucent over the background

    /// Fills `area` with the background of a screen.
    void PaintBackground(QPainter& painter, const QRect& area, LookBackground which) const;

signals:
    /// Other colours or images are in force.
    void Changed();
};

}  // namespace rlx
