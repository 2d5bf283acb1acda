#pragma once

#include <QWidget>

#include "shell/texts.h"
#include "uikit/look.h"
#include "weather/place_forecast.h"

namespace rlx {

/// Where a forecast comes from and when it was made, with marks that warn of it, in one line or two. Its accessible
/// description holds the same words. References must outlive it.
class CForecastOrigin : public QWidget {
    Q_OBJECT

public:
    CForecastOrigin(const ITexts& texts, const CLook& look, QWidget* parent);

    /// `notUpdated`: the last update left the forecast as it was. Shows nothing where there is no forecast.
    void Show(const PlaceForecast& forecast, bool notUpdated);
    void SetTwoLines(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString Text(int id) const;

    const ITexts& m_texts;
    const CLook& m_look;
    QStringList m_marks;
    QString m_issued;
    QString m_source;
    bool m_twoLines = false;
};

}  // namespace rlx
