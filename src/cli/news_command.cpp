#include "cli/commands.h"
#include "cli/feed_session.h"
#include "feeds/news_fetch.h"
#include "feeds/text_ids.h"
#include "news/news_page.h"

namespace rlx::cli {

namespace {

/// The page is printed as it is, so there is nothing to fill; showing it still counts as reading it.
class CNoView : public INewsView {
public:
    void ClearText() override {}
    void AddText(const std::u16string&) override {}
    void EndOfSource() override {}
    void Navigate(const std::u16string&) override {}
};

CNewsPage NewsPage(CSession& session) {
    return {session.Registry(), session.Files(), session.Texts(), session.Folder().Root()};
}

void SetState(CAnswer& answer, const NewsState& state) {
    answer.Set("newsid", ToJson(state.newsId));
    answer.Set("newnews", state.newNews ? 1 : 0);
    answer.Set("newsread", state.newsRead ? 1 : 0);
}

int Fetch(CSession& session, CAnswer& answer) {
    const auto url = FeedAddress(session);
    if (!url) return kFailed;
    CFeedSession feed(session, *url);
    CNewsFetch fetch(feed.Ports(), session.Files(), session.Clock(), session.Folder().Root());
    const NewsFetchResult result = fetch.Fetch(*url, FeedParameters(session).NewsParameters());
    answer.Set("bytes", result.bytes);
    SetState(answer, NewsPage(session).State());
    if (!result.saved) {
        // The protocol knows replies that say nothing; a person is told all the same.
        if (session.Boxes().Shown().empty()) answer.Line(session.Text(kTextSyncFailed));
        return kFailed;
    }
    answer.Line(std::to_string(result.bytes));
    return kDone;
}

int Show(CSession& session, CAnswer& answer) {
    CNewsPage page = NewsPage(session);
    CNoView view;
    page.Show(view);
    const std::u16string html = page.Html();
    answer.Set("html", ToJson(html));
    SetState(answer, page.State());
    answer.Line(html);
    return kDone;
}

}  // namespace

void DeclareNews(CLI::App& app, const SetAction& setAction) {
    app.require_subcommand(1);
    DeclareSub(app, "fetch", "fetches the news page", setAction, Fetch);
    DeclareSub(app, "show", "the last news page", setAction, Show);
}

}  // namespace rlx::cli
