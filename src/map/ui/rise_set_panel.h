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

    struct Form {
        bool named = true;  ///< the days are called today and tomorrow; else by their dates
        ClockForm clock = ClockForm::kTwentyFour;
    };

    /// A day of the city and the one after it.
    void Show(const QString& city, const CitySun& day, const CitySun& next, const Form& form);

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
