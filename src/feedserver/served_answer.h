#pragma once

#include <string>
#include <utility>
#include <vector>

#include "feedserver/answers.h"
#include "feedserver/weather_source.h"

namespace rlx {

/// What goes back over HTTP.
struct ServedAnswer {
    unsigned status = 200;
    std::string body;
    std::vector<std::pair<std::string, std::string>> headers;
    int code = 0;  ///< of the feed protocol, for the log
};

ServedAnswer PlainAnswer(unsigned status, std::string body);

/// What is known, for a load balancer; status 503 as long as there are no rates. `weather` may be null.
ServedAnswer HealthAnswer(const Knowledge& knowledge, const CWeatherSource* weather);

/// An answer of the feed protocol, to the client of that session.
ServedAnswer ServedFeedAnswer(FeedAnswer answer, const std::string& session);

}  // namespace rlx
