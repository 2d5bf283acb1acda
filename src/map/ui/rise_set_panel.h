#pragma once

#include <QWidget>

#include "map/city_sun.h"
#include "uikit/look.h"

namespace rlx {

/// Sunrise, sunset and day length of one city, for two days. Its accessible description holds all that it shows.
/// User-interface thread.
class CRiseSetPanel : public QWidget {
    Q_OBJECT

public:
    CRiseSetPanel(const CLook& look, const ITexts& texts, QWidget* parent = nullptr);

    /// One day as it is shown.
    struct Day {
        QString name;
        SunTexts texts;
    };

    void Show(const QString& city, const Day& day, const Day& next);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// One line of the table; the first names the days.
    struct Row {
        QString label;
        QString today;
        QString tomorrow;
        bool isDayLength = false;
    };

    int FontFor(double width, double line) const;
    void PaintRow(QPainter& painter, const QRectF& area, const Row& row, int font) const;

    const CLook& m_look;
    const ITexts& m_texts;
    QString m_title;
    QString m_note;
    std::vector<Row> m_rows;
};

}  // namespace rlx
