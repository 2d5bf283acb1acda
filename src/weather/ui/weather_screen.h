#pragma once

#include <functional>
#include <optional>

#include "platform/message_boxes.h"
#include "shell/resources.h"
#include "uikit/screen.h"
#include "weather/place_forecast.h"
#include "weather/ui/forecast_days.h"
#include "weather/ui/forecast_origin.h"
#include "weather/ui/forecast_server.h"
#include "weather/ui/no_forecast.h"
#include "weather/ui/place_buttons.h"
#include "weather/ui/place_updates.h"
#include "weather/ui/weather_links.h"
#include "weather/ui/weather_menu.h"
#include "weather/weather_settings.h"

namespace rlx {

/// Lets the user choose a city; nothing when the choice was called off. The arguments are the window to stand in front
/// of, the title, and the city chosen so far.
using CityChooser = std::function<std::optional<CityIndex>(QWidget*, const QString&, CityIndex)>;

/// What the Weather screen works with; all of it outlives the screen.
struct WeatherPorts {
    CCityDatabase& cities;
    const IClock& clock;
    CRegistryStore& settings;
    const CResources& resources;
    IMessageBoxes& boxes;
    const CLook& look;
    IFileSystem& files;
    CWeatherStore& store;
    std::filesystem::path applicationFolder;
    CityChooser chooseCity;
    WithForecastServer withServer;
};

/// The forecast of one of four places: five days at a glance, or one day with all its values and the picture of the
/// week.
class CWeatherScreen : public CScreen {
    Q_OBJECT

public:
    explicit CWeatherScreen(WeatherPorts ports);

    void Refresh() override;
    void Tick() override;
    void Entered() override;
    bool GoBack() override;

    /// Fetches the forecasts of the four places.
    void Update();

    /// Lets the user put another city on one of the four places, 0 to 3.
    void ChangePlace(std::size_t slot);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ConnectLinks();
    void ConnectMenu();
    void MakeBody();
    void Arrange();
    void ShowForecast();
    void ShowTip();
    bool HasCity() const { return !m_forecast.place.empty(); }
    void ChooseIcons();
    void SelectPlace(std::size_t slot);
    void SetDayByDay(bool on);
    void Step(int by);
    void StepPlace(int by);
    CPlaceForecasts Forecasts();
    QString Text(int id) const;

    WeatherPorts m_ports;
    CWeatherSettings m_choices;
    CPlaceUpdates m_updates;
    CWeatherIcons m_icons;
    std::optional<CCityTimes> m_times;  ///< made anew when the settings change
    CWeatherSettings::Places m_cities{};
    std::size_t m_shown = 0;
    bool m_dayByDay = false;
    std::int64_t m_minute = 0;  ///< at which the forecast was last looked at
    TemperatureUnit m_unit = TemperatureUnit::kCelsius;
    PlaceForecast m_forecast;

    CPlaceButtons* m_places = nullptr;
    CWeatherLinks* m_links = nullptr;
    CForecastDays* m_days = nullptr;
    CNoForecast* m_noForecast = nullptr;
    CForecastOrigin* m_origin = nullptr;
    CWeatherMenu m_menu;
    std::optional<QPoint> m_pressed;
};

}  // namespace rlx
