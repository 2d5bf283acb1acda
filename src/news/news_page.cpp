#include "news/news_page.h"

#include <utility>

#include "base/iso_day.h"
#include "base/text.h"
#include "feeds/news_fetch.h"
#include "news/text_ids.h"
#include "shell/fill_text.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

/// A page of a feed has at most 255,999 bytes; one that somebody put there may have more.
constexpr std::size_t kMaxPage = 16U << 20;

}  // namespace

CNewsPage::CNewsPage(IRegistry& registry, IFileSystem& files, const ITexts& texts,
                     std::filesystem::path applicationFolder)
    : m_settings(registry), m_files(files), m_texts(texts), m_folder(std::move(applicationFolder)) {}

std::filesystem::path CNewsPage::File() const {
    return m_folder / kNewsFile;
}

std::vector<std::u16string> CNewsPage::EmptyPage() const {
    return {u"<HTML><TITLE></TITLE>", u"<BODY><P>", m_texts.Text(kTextNoNews) + u"<BR>", u"</BODY></HTML>"};
}

void CNewsPage::Show(INewsView& view) {
    view.ClearText();
    if (m_files.IsFile(File())) {
        view.Navigate(u"file://" + FromUtf8(File().string()));
    } else {
        for (const std::u16string& piece : EmptyPage())
            view.AddText(piece);
        view.EndOfSource();
    }
    m_settings.WriteDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewNews, 0);
    m_settings.WriteDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsRead, 1);
}

std::u16string CNewsPage::Html() {
    const std::optional<std::string> bytes = m_files.ReadFile(File(), kMaxPage);
    if (bytes) return Widen(*bytes);
    std::u16string page;
    for (const std::u16string& piece : EmptyPage())
        page += piece;
    return page;
}

NewsState CNewsPage::State() {
    NewsState state;
    state.newsId = m_settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId);
    if (state.newsId.empty()) state.newsId = u"0";
    state.newNews = m_settings.ReadDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewNews) != 0;
    state.newsRead = m_settings.ReadDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsRead) != 0;
    state.fetched = ParseIsoDay(m_settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsDate));
    state.source = m_settings.ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsSource);
    return state;
}

bool CNewsPage::HasPage() {
    return m_files.IsFile(File());
}

bool AreNewsStale(const NewsState& state, const Date& today) {
    if (!state.fetched) return true;
    const std::int64_t age = DayNumber(today) - DayNumber(*state.fetched);
    return age > kNewsStaleAfterDays || age < -1;
}

std::u16string NewsOriginText(const NewsState& state, const ITexts& texts) {
    std::u16string words;
    if (state.fetched) words = FillText(texts.Text(kTextNewsFetched), {ShownDay(*state.fetched)});
    if (state.source.empty()) return words;
    return words + (words.empty() ? u"" : u", ") + FillText(texts.Text(kTextSource), {state.source});
}

}  // namespace rlx
