#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <string>

#include "feeds/feed_client.h"

namespace rlx {

/// The feed server for the time of one update, which waits behind a progress box with Cancel. User-interface thread.
class IForecastServer {
public:
    virtual ~IForecastServer() = default;

    /// Asks for the forecast of a feed name, for a screen of that size, and waits for the reply. A failure was then
    /// reported. After Cancel every further call ends at once.
    virtual FeedReply Ask(const std::u16string& feedName, const QSize& screen) = 0;

    /// What stands in the progress box above "Waiting for the reply...".
    virtual void SetSubject(const QString& text) = 0;

    virtual bool Cancelled() const = 0;
};

/// Lets the function talk to the feed server; does not call it, and says so, when there is no server to talk to.
using WithForecastServer = std::function<void(const std::function<void(IForecastServer&)>&)>;

}  // namespace rlx
