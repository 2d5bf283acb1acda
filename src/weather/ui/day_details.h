#pragma once

#include <QWidget>

#include "shell/texts.h"
#include "uikit/look.h"
#include "weather/ui/day_view.h"
#include "weather/ui/weather_icons.h"

namespace rlx {

/// All values of one day. Its accessible description holds them too, one "label: value" a line. References must outlive
/// it.
class CDayDetails : public QWidget {
    Q_OBJECT

public:
    CDayDetails(const ITexts& texts, const CLook& look, const CWeatherIcons& icons, QWidget* parent);

    void Show(const DayView& view);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QString label;
        QString value;
    };

    void PaintHead(QPainter& painter, const QRectF& room) const;
    double WidthOf(const QString& text, int size, bool bold) const;
    int RowSize(double width, int largest) const;
    void PaintRows(QPainter& painter, const QRectF& room) const;

    const ITexts& m_texts;
    const CLook& m_look;
    const CWeatherIcons& m_icons;
    DayView m_view;
    QList<Row> m_rows;
};

}  // namespace rlx
