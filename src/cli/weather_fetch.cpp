#include "cli/weather_fetch.h"

#include "base/text.h"
#include "feeds/feed_address.h"
#include "feeds/feed_client.h"
#include "feeds/feed_parameters.h"
#include "feeds/http_url.h"
#include "platform/curl/curl_http_session.h"
#include "platform/offline_connection_manager.h"
#include "platform/posix/machine_connections.h"
#include "platform/posix/machine_info.h"

namespace rlx::cli {

namespace {

FeedDevice ThisDevice() {
    const MachineInfo machine = ReadMachineInfo();
    FeedDevice device;
    device.osMajor = machine.osMajor;
    device.osMinor = machine.osMinor;
    device.processor = machine.processor;
    device.appVersion = Widen(RLX_VERSION);
    return device;
}

}  // namespace

std::vector<PlaceUpdate> FetchWeather(CSession& session, CWeatherStore& store, CPlaceForecasts& forecasts,
                                      const std::vector<CityIndex>& cities) {
    const std::u16string address = FeedServerAddress(session.Files(), session.Folder().Root());
    const auto url = ParseHttpUrl(address);
    CCurlHttpSession http;
    COfflineConnectionManager nothing;
    CMachineConnections machine(url ? url->host : std::string(), session.Text(kTextLoopbackNetwork));
    IConnectionManager& connections = session.Options().offline ? static_cast<IConnectionManager&>(nothing) : machine;
    CFeedClient client({http, connections, session.Registry(), session.Boxes(), session.Texts()});
    const CFeedParameters parameters(session.Registry(), ThisDevice());
    const auto request = [&](const std::u16string& feedName) {
        return client.PostFeedRequest(address, parameters.WeatherParameters(feedName, {}), false).body;
    };
    std::vector<std::u16string> places;
    for (const auto city : cities)
        places.push_back(session.Cities().GetPlace(city));
    CWeatherUpdate update(store, request, session.Boxes(), session.Texts());
    return update.Run(
        places, [&] { return forecasts.UtcNow(); }, nullptr);
}

}  // namespace rlx::cli
