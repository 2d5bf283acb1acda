#pragma once

#include <functional>
#include <string>
#include <vector>

#include "feeds/feed_client.h"
#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "weather/weather_store.h"

namespace rlx {

/// Follows an update of several places and may end it.
class IWeatherUpdateObserver {
public:
    virtual ~IWeatherUpdateObserver() = default;

    /// Before the request for each place; `number` counts from 1 to `total`.
    virtual void OnPlace(std::u16string_view place, std::size_t number, std::size_t total) = 0;

    /// True as soon as the user wants no more; asked before each request and after it.
    virtual bool Cancelled() = 0;
};

/// How an update ended for one place.
enum class PlaceUpdate {
    kSaved,
    kOlder,     ///< the server had nothing newer
    kNoReply,   ///< no answer from the server, which was then reported
    kEmpty,     ///< the server answered with nothing at all
    kUnknown,   ///< the server answered that it has none for this place
    kBroken,    ///< a reply that is no forecast, or that of another place; the last good one stays
    kNotSaved,  ///< the device refused
    kNotAsked,  ///< the update ended before
};

/// Fetches forecasts and keeps them. Used from one thread; owns nothing that it is given.
class CWeatherUpdate {
public:
    /// Asks the server for the forecast of a feed name and waits for the reply; failures were then reported.
    using Request = std::function<FeedReply(const std::u16string& feedName)>;

    CWeatherUpdate(CWeatherStore& store, Request request, IMessageBoxes& boxes, const ITexts& texts);

    /// Updates the places ("Paris:France") in turn; one that comes twice is asked for once. Each place stands for
    /// itself, except that the update ends when nobody answers the very first request: every further one would say so
    /// again. `utcNow` gives the instant in UTC. `observer` may be null. Returns one
    /// result for each of `places`. Says what went wrong in message boxes, once for each kind of failure; nothing when
    /// it was cancelled.
    std::vector<PlaceUpdate> Run(const std::vector<std::u16string>& places, const std::function<DateTime()>& utcNow,
                                 IWeatherUpdateObserver* observer);

private:
    PlaceUpdate UpdatePlace(const std::u16string& place, const std::function<DateTime()>& utcNow);
    void Report(const std::vector<std::u16string>& places, const std::vector<PlaceUpdate>& results);
    void Show(int titleId, const std::u16string& text);

    CWeatherStore& m_store;
    Request m_request;
    IMessageBoxes& m_boxes;
    const ITexts& m_texts;
};

}  // namespace rlx
