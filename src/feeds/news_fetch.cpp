#include "feeds/news_fetch.h"

#include <utility>

#include "base/iso_day.h"
#include "base/text.h"
#include "feeds/http_url.h"
#include "feeds/text_ids.h"
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
    if (!Save(reply.body)) {
        forgetPage();
        return result;
    }
    result.saved = true;
    result.bytes = reply.body.size();
    settings.WriteDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsRead, 0);
    Remember(url);
    m_ports.boxes.Show({m_ports.texts.Text(kTextAppName), m_ports.texts.Text(kTextYouHaveNews), BoxIcon::kInformation,
                        BoxButtons::kOk});
    return result;
}

void CNewsFetch::Remember(std::u16string_view url) {
    CRegistryStore settings(m_ports.registry);
    const std::optional<HttpUrl> address = ParseHttpUrl(url);
    settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsDate, IsoDay(m_clock.Now().date));
    settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsSource,
                         address ? Widen(address->host) : std::u16string());
}

bool CNewsFetch::Save(std::u16string_view page) {
    if (m_files.WriteFile(m_folder / kNewsFile, Narrow(page))) return true;
    m_ports.boxes.Show({m_ports.texts.Text(kTextError), m_ports.texts.Text(kTextNewsNotSaved), BoxIcon::kExclamation,
                        BoxButtons::kOk});
    return false;
}

}  // namespace rlx
