#include "feeds/feed_client.h"

#include <new>
#include <utility>

#include "base/number.h"
#include "base/text.h"
#include "feeds/feed_marks.h"
#include "feeds/reply_body.h"
#include "feeds/reply_headers.h"
#include "feeds/server_verdict.h"
#include "feeds/text_ids.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

constexpr char kAgent[] = "Roamlytix";

// Failures of our own. They were reported where they arose.
constexpr std::uint32_t kOwnFailures = 0x10000000;
constexpr std::uint32_t kBadServerUrl = 0x10000001;
constexpr std::uint32_t kRedirectFailure = 0x10000010;

std::string HeaderBlock(std::u16string_view session) {
    std::string block = "Content-Type: application/x-www-form-urlencoded\r\n";
    if (!session.empty()) block += "Cookie: JSESSIONID=" + Narrow(session) + "\r\n";
    return block;
}

bool IsRedirect(int status) {
    return status == 301 || status == 302 || status == 303;
}

}  // namespace

CFeedClient::CFeedClient(const FeedPorts& ports, Confirmation confirmation)
    : m_ports(ports),
      m_settings(ports.registry),
      m_chooser(ports.connections, m_settings, ports.boxes, ports.texts, confirmation) {}

FeedReply CFeedClient::PostFeedRequest(std::u16string_view url, std::u16string_view parameters, bool quiet,
                                       IHttpObserver* observer) {
    CFeedMarks marks(m_ports.registry);
    try {
        CHeldConnections held(m_ports.connections);
        const std::optional<Guid> network = m_chooser.ChooseConnection(quiet, held);
        if (!network) return {{}, FeedOutcome::kNotConnected};
        std::u16string marked = u"inet=" + DestinationName(*network) + u":" + HttpProviderName() + u"&";
        marked += parameters;
        FeedReply reply = Exchange(url, marked, quiet, observer);
        if (reply.outcome == FeedOutcome::kCancelled) marks.Restore();
        return reply;
    } catch (const std::bad_alloc&) {
        return Fail(kHttpOutOfMemory);
    }
}

FeedReply CFeedClient::Exchange(std::u16string_view url, const std::u16string& parameters, bool quiet,
                                IHttpObserver* observer) {
    const std::u16string session =
        m_settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kSession);
    HttpPost post;
    post.agent = kAgent;
    post.headers = HeaderBlock(session);
    post.body = Narrow(parameters);
    const Sent sent = SendAll(url, post, observer);
    if (!sent.reply) return Fail(sent.failure);
    if (sent.reply->Status() == 401) {
        ShowError(kTextAccessDenied);
        return {{}, FeedOutcome::kDenied};
    }
    return TakeReply(*sent.reply, session, quiet);
}

CFeedClient::Sent CFeedClient::SendAll(std::u16string_view url, HttpPost& post, IHttpObserver* observer) {
    Sent sent = Send(url, post, observer, kTextServerUrlError, kBadServerUrl);
    if (!sent.reply || !IsRedirect(sent.reply->Status())) return sent;
    return FollowRedirect(sent, post, observer);
}

CFeedClient::Sent CFeedClient::Send(std::u16string_view url, HttpPost& post, IHttpObserver* observer, int badUrlText,
                                    std::uint32_t badUrl) {
    const std::optional<HttpUrl> address = ParseHttpUrl(url);
    if (!address) {
        ShowError(badUrlText);
        return {nullptr, badUrl};
    }
    post.host = address->host;
    post.port = address->port;
    post.objectPath = address->objectPath;
    HttpAnswer answer = m_ports.http.Post(post, observer);
    return {std::move(answer.reply), answer.failure};
}

CFeedClient::Sent CFeedClient::FollowRedirect(const Sent& first, HttpPost& post, IHttpObserver* observer) {
    const std::optional<std::u16string> location = RedirectLocation(Widen(first.reply->RawHeaders()));
    if (!location) {
        ShowError(kTextNoNewLocation);
        return {nullptr, kRedirectFailure};
    }
    Sent second = Send(*location, post, observer, kTextRedirectedUrlError, kRedirectFailure);
    if (second.reply && second.reply->Status() != 200) return {nullptr, kRedirectFailure};
    return second;
}

FeedReply CFeedClient::TakeReply(IHttpReply& reply, const std::u16string& storedSession, bool quiet) {
    const ReplyHeaders headers = ReadReplyHeaders(Widen(reply.RawHeaders()));
    MarkNews(headers.newsId, quiet);
    const ServerVerdict verdict = JudgeReply(reply.Status(), headers.serverCode, m_ports.texts);
    if (!verdict.message.empty()) {
        m_ports.boxes.Show({m_ports.texts.Text(kTextAppName), verdict.message, BoxIcon::kExclamation, BoxButtons::kOk});
    }
    if (storedSession.empty() || headers.session != storedSession)
        m_settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kSession, headers.session);
    if (!verdict.readBody) return {{}, FeedOutcome::kNotUnderstood};
    std::optional<std::u16string> body = ReadReplyBody(reply);
    if (!body) return Fail(reply.Failure());
    return {std::move(*body), FeedOutcome::kAnswered};
}

void CFeedClient::MarkNews(const std::u16string& newsId, bool quiet) {
    if (quiet) {
        m_settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId, newsId);
        return;
    }
    std::u16string stored = m_settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId);
    if (stored.empty()) {
        stored = u"0";
        m_settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId, stored);
    }
    m_settings.WriteDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewNews, newsId == stored ? 0 : 1);
}

void CFeedClient::ShowError(int text) {
    m_ports.boxes.Show(
        {m_ports.texts.Text(kTextError), m_ports.texts.Text(text), BoxIcon::kExclamation, BoxButtons::kOk});
}

FeedReply CFeedClient::Fail(std::uint32_t code) {
    if (code == kHttpCancelled) return {{}, FeedOutcome::kCancelled};
    const ITexts& texts = m_ports.texts;
    if (code == kHttpOutOfMemory) {
        ShowError(kTextNotEnoughMemory);
    } else if (code == kHttpCannotConnect) {
        ShowError(kTextCannotUpdate);
    } else if (code < kOwnFailures) {
        const std::u16string text = texts.Text(kTextCannotConnect) + u"(" + FormatInteger(code) + u").\n\n" +
                                    texts.Text(kTextMoreInformation) + u" " + texts.Text(kTextContactSupport);
        m_ports.boxes.Show({texts.Text(kTextError), text, BoxIcon::kExclamation, BoxButtons::kOk});
    }
    return {{}, FeedOutcome::kFailed};
}

}  // namespace rlx
