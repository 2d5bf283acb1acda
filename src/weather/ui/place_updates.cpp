#include "weather/ui/place_updates.h"

#include <algorithm>

#include "weather/ui/update_progress.h"

namespace rlx {

CPlaceUpdates::CPlaceUpdates(CCityDatabase& cities, CWeatherStore& store, IMessageBoxes& boxes, const ITexts& texts,
                             WithForecastServer withServer)
    : m_cities(cities), m_store(store), m_boxes(boxes), m_texts(texts), m_withServer(std::move(withServer)) {}

bool CPlaceUpdates::Run(const CWeatherSettings::Places& cities, const std::function<DateTime()>& utcNow,
                        const QSize& screen) {
    if (m_running) return false;
    m_running = true;
    m_store.EnsureCreated();
    const auto places = PlacesOf(cities);
    m_withServer([&](IForecastServer& server) {
        CUpdateProgress progress(server, m_texts);
        const auto request = [&](const std::u16string& feedName) { return server.Ask(feedName, screen); };
        CWeatherUpdate update(m_store, request, m_boxes, m_texts);
        TakeResults(places, update.Run(places, utcNow, &progress));
    });
    m_running = false;
    return true;
}

std::vector<std::u16string> CPlaceUpdates::PlacesOf(const CWeatherSettings::Places& cities) {
    std::vector<std::u16string> places;
    for (const auto city : cities) {
        const auto place = m_cities.GetPlace(city);
        if (!place.empty() && std::ranges::find(places, place) == places.end()) places.push_back(place);
    }
    return places;
}

/// What is shown of a place that could not be updated is the last good forecast, and says so.
void CPlaceUpdates::TakeResults(const std::vector<std::u16string>& places, const std::vector<PlaceUpdate>& results) {
    const bool unreachable = !results.empty() && results.front() == PlaceUpdate::kNoReply;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const bool good = results[i] == PlaceUpdate::kSaved || results[i] == PlaceUpdate::kOlder;
        const bool asked = results[i] != PlaceUpdate::kNotAsked || unreachable;
        if (good) m_notUpdated.erase(places[i]);
        if (!good && asked) m_notUpdated.insert(places[i]);
        if (results[i] == PlaceUpdate::kUnknown || results[i] == PlaceUpdate::kEmpty) m_notServed.insert(places[i]);
        if (good) m_notServed.erase(places[i]);
    }
}

}  // namespace rlx
