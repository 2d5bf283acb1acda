#include "feeds/news_fetch.h"

#include <array>
#include <span>
#include <utility>

#include "base/iso_day.h"
#include "base/text.h"
#include "feeds/http_url.h"
#include "feeds/text_ids.h"
#include "platform/registry_value.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"

namespace rlx {

CNewsFetch::CNewsFetch(const FeedPorts& ports, IFileSystem& files, const IClock& clock,
                       std::filesystem::path applicationFolder)
    : m_ports(ports), m_files(files), m_clock(clock), m_folder(std::move(applicationFolder)), m_client(ports) {}

NewsFetchResult CNewsFetch::Fetch(std::u16string_view url, std::u16string_view parameters, IHttpObserver* observer) {
    CRegistryStore settings(m_ports.registry);
    const std::u16string known = settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId);
    const FeedReply reply = m_client.PostFeedRequest(url, parameters, true, observer);
    NewsFetchResult result;
    result.outcome = reply.outcome;
    if (reply.outcome == FeedOutcome::kCancelled) return result;
    // The page is still to be fetched, so its identifier must not count as known.
    const auto forgetPage = [&] {
        if (settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId) != known)
            settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId, known);
    };
    if (reply.outcome != FeedOutcome::kAnswered) forgetPage();
    if (reply.body.empty()) {
        settings.WriteDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewNews, 0);
        return result;
    }
    if (!Keep(reply.body, url)) {
        forgetPage();
        m_ports.boxes.Show({m_ports.texts.Text(kTextError), m_ports.texts.Text(kTextNewsNotSaved),
                            BoxIcon::kExclamation, BoxButtons::kOk});
        return result;
    }
    result.saved = true;
    result.bytes = reply.body.size();
    m_ports.boxes.Show({m_ports.texts.Text(kTextAppName), m_ports.texts.Text(kTextYouHaveNews), BoxIcon::kInformation,
                        BoxButtons::kOk});
    return result;
}

/// Day and source first: a page without them would pass for one of the former day.
bool CNewsFetch::Keep(std::u16string_view page, std::u16string_view url) {
    const auto exchange = [this](std::span<const RegistryAssignment> values) {
        return m_ports.registry.Exchange(RegistryRoot::kLocalMachine, keys::kRoamlytix, {}, values);
    };
    const std::optional<HttpUrl> address = ParseHttpUrl(url);
    const std::array values{
        RegistryAssignment{names::kNewsRead, DwordValue(0)},
        RegistryAssignment{names::kNewsDate, TextValue(IsoDay(m_clock.Now().date))},
        RegistryAssignment{names::kNewsSource, TextValue(address ? Widen(address->host) : std::u16string())}};
    auto former = values;
    for (RegistryAssignment& value : former)
        value.value = m_ports.registry.Query(RegistryRoot::kLocalMachine, keys::kRoamlytix, value.name);
    if (!exchange(values)) return false;
    if (m_files.WriteFile(m_folder / kNewsFile, Narrow(page))) return true;
    exchange(former);
    return false;
}

}  // namespace rlx
