#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "feeds/connection_choice.h"
#include "feeds/http_url.h"
#include "platform/connection_manager.h"
#include "platform/http_session.h"
#include "platform/message_boxes.h"
#include "platform/registry.h"
#include "shell/registry_store.h"
#include "shell/texts.h"

namespace rlx {

/// What a request needs of the world. All of it outlives the client.
struct FeedPorts {
    IHttpSession& http;
    IConnectionManager& connections;
    IRegistry& registry;
    IMessageBoxes& boxes;
    const ITexts& texts;
};

enum class FeedOutcome {
    kAnswered,       ///< the server answered; the body may still be empty
    kNotConnected,   ///< no connection was chosen; reported
    kDenied,         ///< status 401; reported
    kFailed,         ///< reported, except a redirect that led to no page
    kNotUnderstood,  ///< a reply without a server code that we know; not reported
    kCancelled,      ///< the user ended it; nothing is reported and nothing is changed
};

struct FeedReply {
    std::u16string body;  ///< each byte one character; empty unless `kAnswered`
    FeedOutcome outcome = FeedOutcome::kFailed;
};

/// The one way to the feed server: chooses a connection, posts, follows one redirect, keeps session and news marker in
/// the registry, tells the user what the server says, and returns the body. Waits until all of it is done. Nothing
/// outlives a call but the registry values "RXSI", "newsid", "newnews" (and "connok", when the user agrees for good).
class CFeedClient {
public:
    explicit CFeedClient(const FeedPorts& ports, Confirmation confirmation = Confirmation::kEachRequest);

    /// `parameters`: the form-encoded string of a builder. `quiet`: no confirmation is asked and the reply's news
    /// identifier is stored; else it is compared with the stored one. `observer` may be null.
    FeedReply PostFeedRequest(std::u16string_view url, std::u16string_view parameters, bool quiet,
                              IHttpObserver* observer = nullptr);

    std::u16string DestinationName(const Guid& destination) { return m_chooser.DestinationName(destination); }
    std::u16string HttpProviderName() { return m_chooser.HttpProviderName(); }

private:
    /// A reply to go on with, or the code of the failure.
    struct Sent {
        std::unique_ptr<IHttpReply> reply;
        std::uint32_t failure = 0;
    };

    FeedReply Exchange(std::u16string_view url, const std::u16string& parameters, bool quiet, IHttpObserver* observer);
    Sent SendAll(std::u16string_view url, HttpPost& post, IHttpObserver* observer);
    Sent Send(std::u16string_view url, HttpPost& post, IHttpObserver* observer, int badUrlText, std::uint32_t badUrl);
    Sent FollowRedirect(const Sent& first, HttpPost& post, IHttpObserver* observer);
    FeedReply TakeReply(IHttpReply& reply, const std::u16string& storedSession, bool quiet);
    void MarkNews(const std::u16string& newsId, bool quiet);
    void ShowError(int text);
    FeedReply Fail(std::uint32_t code);

    FeedPorts m_ports;
    CRegistryStore m_settings;
    CConnectionChooser m_chooser;
};

}  // namespace rlx
