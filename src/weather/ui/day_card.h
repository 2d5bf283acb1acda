#pragma once

#include <QAbstractButton>

#include "shell/texts.h"
#include "uikit/look.h"
#include "weather/ui/day_view.h"
#include "weather/ui/weather_icons.h"

namespace rlx {

/// One day of the overview: a column when it is taller than wide, else a row. A tap chooses the day. Its accessible
/// name says all that it shows. References must outlive it.
class CDayCard : public QAbstractButton {
    Q_OBJECT

public:
    CDayCard(const ITexts& texts, const CLook& look, const CWeatherIcons& icons, QWidget* parent);

    void Show(const DayView& view);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintColumn(QPainter& painter, QRectF room) const;
    void PaintRow(QPainter& painter, QRectF room) const;
    void PaintChance(QPainter& painter, const QRectF& room, double size, bool toTheRight) const;

    const ITexts& m_texts;
    const CLook& m_look;
    const CWeatherIcons& m_icons;
    DayView m_view;
};

}  // namespace rlx
