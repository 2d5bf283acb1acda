#include "cli/weather_fetch.h"

#include "cli/feed_session.h"

namespace rlx::cli {

std::vector<PlaceUpdate> FetchWeather(CSession& session, CWeatherStore& store, CPlaceForecasts& forecasts,
                                      const std::vector<CityIndex>& cities) {
    const auto address = FeedAddress(session);
    if (!address) return {};
    CFeedSession feed(session, *address);
    CFeedClient client(feed.Ports(), Confirmation::kOnce);
    const CFeedParameters parameters = FeedParameters(session);
    const auto request = [&](const std::u16string& feedName) {
        return client.PostFeedRequest(*address, parameters.WeatherParameters(feedName, {}), false);
    };
    std::vector<std::u16string> places;
    places.reserve(cities.size());
    for (const auto city : cities)
        places.push_back(session.Cities().GetPlace(city));
    CWeatherUpdate update(store, request, session.Boxes(), session.Texts());
    return update.Run(
        places, [&] { return forecasts.UtcNow(); }, nullptr);
}

}  // namespace rlx::cli
