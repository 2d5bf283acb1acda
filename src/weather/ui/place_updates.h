#pragma once

#include <QSize>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "places/city_database.h"
#include "weather/ui/forecast_server.h"
#include "weather/weather_settings.h"
#include "weather/weather_update.h"

namespace rlx {

/// Fetches the forecasts of the places and remembers, until the program ends, which of them that left as they were.
/// References must outlive it. User-interface thread.
class CPlaceUpdates {
public:
    CPlaceUpdates(CCityDatabase& cities, CWeatherStore& store, IMessageBoxes& boxes, const ITexts& texts,
                  WithForecastServer withServer);

    /// Asks the server for the places of the cities, for a screen of that size, and waits. `utcNow` gives the instant
    /// in UTC. False while another run is under way: then nothing happens.
    bool Run(const CWeatherSettings::Places& cities, const std::function<DateTime()>& utcNow, const QSize& screen);

    bool IsRunning() const { return m_running; }

    /// The last update left the place ("Paris:France") as it was.
    bool IsNotUpdated(const std::u16string& place) const { return m_notUpdated.contains(place); }

    /// The server had no forecast of it at all.
    bool IsNotServed(const std::u16string& place) const { return m_notServed.contains(place); }

private:
    std::vector<std::u16string> PlacesOf(const CWeatherSettings::Places& cities);
    void TakeResults(const std::vector<std::u16string>& places, const std::vector<PlaceUpdate>& results);

    CCityDatabase& m_cities;
    CWeatherStore& m_store;
    IMessageBoxes& m_boxes;
    const ITexts& m_texts;
    WithForecastServer m_withServer;
    bool m_running = false;
    std::set<std::u16string> m_notUpdated;
    std::set<std::u16string> m_notServed;
};

}  // namespace rlx
