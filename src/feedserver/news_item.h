#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace rlx {

/// A page of news as it is served.
struct NewsItem {
    std::string id;    ///< made of the content alone, so that every instance of the server gives the same
    std::string html;  ///< at most `kMaxNewsBytes`
};

inline constexpr std::size_t kMaxNewsBytes = 200'000;

/// Either a page or what is wrong, in one line.
struct ParsedNews {
    std::optional<NewsItem> item;
    std::string fault;
};

/// The page as it is, with its identifier.
NewsItem MakeNewsItem(std::string html);

/// Turns an RSS 2.0 feed into one plain page: titles, links (http and https only), dates and descriptions without their
/// tags, in ASCII with character references. Takes any bytes; nothing outside of them is read.
ParsedNews ParseRssNews(std::string_view xml);

/// The page of a folder whose file (.htm, .html) was changed last; of equal ones the last by name.
ParsedNews NewestPage(IFileSystem& files, const std::filesystem::path& folder);

}  // namespace rlx
