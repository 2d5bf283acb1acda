#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/calendar.h"
#include "platform/file_system.h"
#include "platform/registry.h"
#include "shell/registry_store.h"
#include "shell/texts.h"

namespace rlx {

/// The viewer that shows a page of HTML.
class INewsView {
public:
    virtual ~INewsView() = default;

    virtual void ClearText() = 0;
    virtual void AddText(const std::u16string& html) = 0;
    virtual void EndOfSource() = 0;
    virtual void Navigate(const std::u16string& url) = 0;
};

/// What the news flags of the registry say.
struct NewsState {
    std::u16string newsId;        ///< of the page last fetched; "0" when none
    bool newNews = false;         ///< there is news not yet fetched
    bool newsRead = false;        ///< the fetched page has been shown
    std::optional<Date> fetched;  ///< day on which the page came; nothing when that is not known
    std::u16string source;        ///< the host that it came from
};

/// News older than this many days are out of date.
inline constexpr int kNewsStaleAfterDays = 3;

/// Also true for a day that lies more than one day ahead of the device's, and for an unknown one.
bool AreNewsStale(const NewsState& state, const Date& today);

/// "Fetched on 20/11/2026, Source: localhost", as far as it is known, for people to read.
std::u16string NewsOriginText(const NewsState& state, const ITexts& texts);

/// Shows the last news page, or that there is none, and keeps the flags.
class CNewsPage {
public:
    CNewsPage(IRegistry& registry, IFileSystem& files, const ITexts& texts, std::filesystem::path applicationFolder);

    /// Fills the view; from then on no news waits and the page counts as read.
    void Show(INewsView& view);

    /// The page as one text, each byte of the file one character; the flags stay as they are.
    std::u16string Html();

    NewsState State();

    /// False before the first fetch.
    bool HasPage();

private:
    std::filesystem::path File() const;
    /// The page that says that nothing was fetched yet, as it is handed to the view.
    std::vector<std::u16string> EmptyPage() const;

    CRegistryStore m_settings;
    IFileSystem& m_files;
    const ITexts& m_texts;
    std::filesystem::path m_folder;
};

}  // namespace rlx
