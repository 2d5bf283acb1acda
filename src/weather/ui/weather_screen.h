#pragma once

#include <QMenu>
#include <QTimer>
#include <array>
#include <functional>
#include <optional>
#include <set>

#include "platform/message_boxes.h"
#include "shell/resources.h"
#include "uikit/screen.h"
#include "uikit/template_menu.h"
#include "weather/place_forecast.h"
#include "weather/ui/day_card.h"
#include "weather/ui/day_details.h"
#include "weather/ui/forecast_origin.h"
#include "weather/ui/forecast_server.h"
#include "weather/ui/link_button.h"
#include "weather/ui/week_chart.h"
#include "weather/weather_settings.h"
#include "weather/weather_update.h"

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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakePlaces();
    void MakeLinks();
    void MakeDays();
    void MakeMenu();
    void FillIconSets();
    void Arrange();
    void ShowForecast();
    void ShowDays();
    void ShowOrigin();
    void ShowTip();
    void TakeResults(const std::vector<std::u16string>& places, const std::vector<PlaceUpdate>& results);
    std::vector<std::u16string> PlacesToUpdate();
    bool HasCity() const { return !m_forecast.place.empty(); }
    QString EmptyText() const;
    void ChooseIcons();
    void SelectPlace(std::size_t slot);
    void SelectDay(std::size_t day);
    void SetDayByDay(bool on);
    void StepDay(int by);
    void StepPlace(int by);
    void OpenMenu(std::size_t slot, const QPoint& globalPoint);
    std::optional<std::size_t> SlotOf(const QObject* button) const;
    CPlaceForecasts Forecasts();

    WeatherPorts m_ports;
    CWeatherSettings m_choices;
    CWeatherIcons m_icons;
    std::optional<CCityTimes> m_times;  ///< made anew when the settings change
    CWeatherSettings::Places m_places{};
    std::size_t m_shown = 0;
    std::size_t m_day = 0;
    bool m_dayByDay = false;
    bool m_updating = false;
    std::int64_t m_minute = 0;  ///< at which the forecast was last looked at
    TemperatureUnit m_unit = TemperatureUnit::kCelsius;
    PlaceForecast m_forecast;
    std::set<std::u16string> m_notUpdated;  ///< places that the last update in this run left as they were
    std::set<std::u16string> m_notServed;   ///< those for which the server had no forecast at all

    std::array<CLinkButton*, kWeatherPlaceCount> m_placeButtons{};
    CLinkButton* m_view = nullptr;
    CLinkButton* m_unitLink = nullptr;
    CLinkButton* m_update = nullptr;
    CLinkButton* m_heading = nullptr;
    CLinkButton* m_previous = nullptr;
    CLinkButton* m_next = nullptr;
    CLinkButton* m_dayName = nullptr;
    CLinkButton* m_empty = nullptr;
    std::array<CDayCard*, kOverviewDays> m_cards{};
    CDayDetails* m_details = nullptr;
    CWeekChart* m_chart = nullptr;
    CForecastOrigin* m_origin = nullptr;
    CCommandTable m_commands;
    QMenu m_menu;
    QMenu* m_iconMenu = nullptr;
    QTimer m_longTap;
    std::size_t m_held = 0;  ///< the place that a finger rests on, or that the menu is about
    std::optional<QPoint> m_pressed;
};

}  // namespace rlx
