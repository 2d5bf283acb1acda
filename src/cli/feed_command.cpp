#include <memory>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/feed_session.h"
#include "weather/weather_store.h"

namespace rlx::cli {

namespace {

constexpr std::string_view kWeatherPrefix = "weather:";

struct PostOptions {
    std::string url;
    std::string parameters;
    bool quiet = false;
};

/// The parameter string of a weather request; nothing when the word names no city.
std::optional<std::u16string> WeatherString(CSession& session, const std::string& word) {
    const auto city = FindCity(session, word);
    if (!city) return std::nullopt;
    const auto listFile = session.Folder().Path(u"\\cities.wet").value_or(session.Folder().Root() / "cities.wet");
    CWeatherStore store(session.ObjectStore(), session.Files(), listFile);
    store.EnsureCreated();
    const CFeedParameters builder = FeedParameters(session);
    return builder.WeatherParameters(store.FeedName(session.Cities().GetPlace(*city)), builder.Device().workArea);
}

std::optional<std::u16string> ParameterString(CSession& session, const std::string& kind) {
    if (kind.starts_with(kWeatherPrefix)) return WeatherString(session, kind.substr(kWeatherPrefix.size()));
    const CFeedParameters builder = FeedParameters(session);
    if (kind == "news") return builder.NewsParameters();
    return builder.CurrencyParameters(builder.HomeName(), builder.Device().workArea);
}

int String(CSession& session, CAnswer& answer, const std::string& kind) {
    const auto parameters = ParameterString(session, kind);
    if (!parameters) return kFailed;
    answer.Set("parameters", ToJson(*parameters));
    answer.Line(*parameters);
    return kDone;
}

int Post(CSession& session, CAnswer& answer, const PostOptions& options) {
    CFeedSession feed(session, FromUtf8(options.url));
    CFeedClient client(feed.Ports());
    const FeedReply reply = client.PostFeedRequest(feed.Url(), FromUtf8(options.parameters), options.quiet);
    answer.Set("body", ToJson(reply.body));
    if (reply.body.empty()) return kFailed;
    answer.Line(reply.body);
    return kDone;
}

std::string CheckKind(const std::string& kind) {
    const bool known = kind == "currency" || kind == "news" ||
                       (kind.starts_with(kWeatherPrefix) && kind.size() > kWeatherPrefix.size());
    return known ? std::string() : "\"" + kind + "\" is none of currency, news, weather:CITY";
}

}  // namespace

void DeclareFeed(CLI::App& app, const SetAction& setAction) {
    app.require_subcommand(1);
    auto kind = std::make_shared<std::string>();
    CLI::App* string = DeclareSub(app, "string", "the parameters of a request", setAction,
                                  [kind](CSession& s, CAnswer& a) { return String(s, a, *kind); });
    string->add_option("KIND", *kind, "currency, news or weather:CITY")->required()->check(CheckKind);
    auto options = std::make_shared<PostOptions>();
    CLI::App* post = DeclareSub(app, "post", "sends parameters to a feed server", setAction,
                                [options](CSession& s, CAnswer& a) { return Post(s, a, *options); });
    post->add_option("--url", options->url, "address of the feed server")->required();
    post->add_option("--parameters", options->parameters, "form-encoded text")->required();
    post->add_flag("--quiet-request", options->quiet, "asks nothing and takes over the news identifier");
}

}  // namespace rlx::cli
