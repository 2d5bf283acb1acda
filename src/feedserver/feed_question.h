#pragma once

#include <string>
#include <string_view>

namespace rlx {

enum class FeedJob { kInvalid, kRates, kWeather, kNews };

/// What a client asks for.
struct FeedQuestion {
    FeedJob job = FeedJob::kInvalid;
    std::string city;    ///< of `kWeather`
    std::string newsId;  ///< of `kNews`: the page that the client has
};

/// Takes the body of a request apart. Values are not encoded, so a name may hold "&" or "="; the pairs are looked for
/// in their order. `kInvalid` when one of the required pairs is missing or a size is none. Takes any bytes.
FeedQuestion ParseFeedQuestion(std::string_view body);

}  // namespace rlx
