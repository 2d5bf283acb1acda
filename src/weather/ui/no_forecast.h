#pragma once

#include <QWidget>

#include "uikit/look.h"
#include "weather/ui/link_button.h"
#include "weather/ui/weather_icons.h"

namespace rlx {

/// Stands where there is no forecast: says why, and offers what helps. References must outlive it.
class CNoForecast : public QWidget {
    Q_OBJECT

public:
    /// The button is called "updateNow".
    CNoForecast(const CLook& look, const CWeatherIcons& icons, QWidget* parent);

    /// `help` and `icon` are the button's; `icon` may be empty.
    void Show(const QString& why, const QString& help, const QString& icon);

signals:
    void HelpWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const CLook& m_look;
    const CWeatherIcons& m_icons;
    CLinkButton* m_help;
    QString m_why;
};

}  // namespace rlx
