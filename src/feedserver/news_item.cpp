#include "feedserver/news_item.h"

#include <cstdint>
#include <system_error>
#include <utility>

namespace rlx {

namespace {

bool IsPageName(const std::string& name) {
    return name.ends_with(".htm") || name.ends_with(".html");
}

}  // namespace

NewsItem MakeNewsItem(std::string html) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::uint64_t hash = 0xCBF29CE484222325ULL;  // FNV-1a
    for (const char byte : html)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3ULL;
    std::string id;
    for (int shift = 60; shift >= 0; shift -= 4)
        id.push_back(kDigits[(hash >> shift) & 0xF]);
    return {std::move(id), std::move(html)};
}

ParsedNews NewestPage(IFileSystem& files, const std::filesystem::path& folder) {
    std::string newest;
    std::filesystem::file_time_type when = std::filesystem::file_time_type::min();
    for (const std::string& name : files.ListFiles(folder)) {
        std::error_code error;
        const auto changed = std::filesystem::last_write_time(folder / name, error);
        if (!IsPageName(name) || error || changed < when) continue;
        newest = name;
        when = changed;
    }
    if (newest.empty()) return {std::nullopt, "no page in " + folder.string()};
    std::optional<std::string> html = files.ReadFile(folder / newest, kMaxNewsBytes);
    if (!html || html->empty()) return {std::nullopt, newest + " cannot be read, is empty, or is too large"};
    return {MakeNewsItem(std::move(*html)), {}};
}

}  // namespace rlx
