#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "shell/texts.h"
#include "uikit/look.h"
#include "weather/week_picture.h"

namespace rlx {

/// The picture of the week: the curves of high and low over bars of precipitation, a gap where a value is not known.
/// References must outlive it.
class CWeekChart : public QWidget {
    Q_OBJECT

public:
    CWeekChart(const ITexts& texts, const CLook& look, QWidget* parent);

    /// The column `chosen` is marked.
    void Show(const WeekPicture& picture, std::size_t chosen);

    /// The day at a point of the widget.
    std::optional<std::size_t> DayAt(const QPoint& point) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Frame {
        QRectF plot;     ///< one column a day
        double columns;  ///< width of each
        double font;     ///< pixels
    };

    Frame FrameOf() const;
    void PaintScales(QPainter& painter, const Frame& frame) const;
    void PaintBars(QPainter& painter, const Frame& frame) const;
    void PaintCurve(QPainter& painter, const Frame& frame, std::optional<double> WeekColumn::*member,
                    const QColor& colour, Qt::PenStyle style) const;
    double WidthOf(const QString& text) const;  ///< at the smallest size
    QString Degrees(int value) const;

    const ITexts& m_texts;
    const CLook& m_look;
    WeekPicture m_picture;
    std::size_t m_chosen = 0;
};

}  // namespace rlx
