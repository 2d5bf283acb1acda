#include "weather/weather_list.h"

#include <algorithm>
#include <vector>

#include "base/number.h"
#include "base/text.h"

namespace rlx {
namespace {

constexpr std::size_t kMaxList = std::size_t{64} * 1024 * 1024;

/// The lines that the first line promises, and what stands behind them.
struct List {
    std::vector<std::u16string> lines;
    std::u16string rest;
};

std::optional<List> Read(IFileSystem& files, const std::filesystem::path& file) {
    const auto bytes = files.ReadFile(file, kMaxList);
    if (!bytes) return std::nullopt;
    const std::u16string text = Widen(*bytes);
    List list;
    std::size_t at = 0;
    const auto line = [&] {
        const std::size_t end = std::min(text.find(u'\n', at), text.size());
        std::u16string found = text.substr(at, end - at);
        at = std::min(end + 1, text.size());
        return found;
    };
    const std::int32_t count = ParseInteger(line());
    while (at < text.size() && list.lines.size() < static_cast<std::size_t>(std::max(count, 0))) {
        const std::size_t begin = at;
        list.lines.push_back(line());
        if (!list.lines.back().starts_with(u'>')) continue;
        list.lines.pop_back();
        at = begin;
        break;
    }
    list.rest = text.substr(at);
    return list;
}

bool Write(IFileSystem& files, const std::filesystem::path& file, const List& list) {
    std::u16string text = FormatInteger(static_cast<std::int64_t>(list.lines.size())) + u"\n";
    for (const auto& line : list.lines)
        text.append(line).append(u"\n");
    return files.WriteFile(file, Narrow(text + list.rest));
}

/// "name;country;", with which the line of a place begins.
std::u16string Beginning(const std::u16string& place) {
    const std::size_t colon = std::min(place.find(u':'), place.size());
    const std::u16string country = colon < place.size() ? place.substr(colon + 1) : std::u16string();
    return place.substr(0, colon) + u";" + country + u";";
}

std::u16string FeedNameOf(const std::u16string& line) {
    return Trim(line.substr(line.rfind(u';') + 1));
}

std::u16string UnusedFeedName(const List& list, const std::u16string& place) {
    const std::u16string name = MakeFeedName(place);
    std::u16string candidate = name;
    const auto isTaken = [&candidate](const std::u16string& line) { return FeedNameOf(line) == candidate; };
    for (int number = 2; std::ranges::any_of(list.lines, isTaken); ++number)
        candidate = name + u"-" + FormatInteger(number);
    return candidate;
}

std::u16string Key(std::u16string_view text) {
    std::u16string key;
    for (const char16_t unit : FoldForSearch(text)) {
        const bool plain = (unit >= u'a' && unit <= u'z') || (unit >= u'0' && unit <= u'9');
        if (unit == u'\'' || unit == u'.') continue;
        if (plain || (!key.empty() && key.back() != u'-')) key += plain ? unit : u'-';
    }
    if (key.ends_with(u'-')) key.pop_back();
    return key;
}

}  // namespace

std::u16string MakeFeedName(std::u16string_view place) {
    const std::size_t colon = std::min(place.find(u':'), place.size());
    return Key(place.substr(0, colon)) + u"_" + Key(place.substr(std::min(colon + 1, place.size())));
}

bool FollowCityChange(IFileSystem& files, const std::filesystem::path& listFile, const WeatherPlaceChange& change) {
    auto list = Read(files, listFile);
    if (!list) return false;
    const auto find = [&list](const std::u16string& place) {
        return std::ranges::find_if(list->lines,
                                    [begin = Beginning(place)](const auto& line) { return line.starts_with(begin); });
    };
    const auto old = change.before ? find(*change.before) : list->lines.end();
    const bool known = old != list->lines.end();
    const bool wanted = change.after && find(*change.after) == list->lines.end();
    if (known && wanted) {
        *old = Beginning(*change.after) + FeedNameOf(*old);
    } else if (known && change.after != change.before) {
        list->lines.erase(old);
    } else if (wanted) {
        list->lines.push_back(Beginning(*change.after) + UnusedFeedName(*list, *change.after));
    } else {
        return true;
    }
    return Write(files, listFile, *list);
}

}  // namespace rlx
