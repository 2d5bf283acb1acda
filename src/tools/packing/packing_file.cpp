#include "tools/packing/packing_file.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/text.h"

namespace rlx {

namespace {

constexpr char16_t kCategoryMark = u'>';
constexpr char16_t kListMark = u'*';
constexpr char16_t kEndMark = u'<';
constexpr char16_t kTicked = u'1';

bool BeginsWith(std::u16string_view line, char16_t mark) {
    return !line.empty() && line.front() == mark;
}

/// Without its last character, which may be a pair of surrogates: half of one could not be written again.
std::u16string_view WithoutLast(std::u16string_view line) {
    if (line.empty()) return line;
    const bool isLowHalf = line.back() >= 0xDC00 && line.back() <= 0xDFFF;
    line.remove_suffix(isLowHalf && line.size() > 1 ? 2 : 1);
    return line;
}

/// Reads the grammar line by line. A line holds the carriage return that ends it.
class CPackingParser {
public:
    explicit CPackingParser(std::u16string_view text) : m_rest(text) {}

    /// Nothing when the text breaks the grammar.
    std::optional<std::vector<PackingCategory>> Parse() {
        std::optional<std::u16string_view> line = Next();
        if (!line || !IsMarker(*line, kCategoryMark)) return std::nullopt;
        std::vector<PackingCategory> categories;
        while (BeginsWith(*line, kCategoryMark)) {
            std::optional<PackingCategory> category = ParseCategory(line);
            if (!category || !line) return std::nullopt;
            if (categories.size() < kMaxPackingCategories) {
                categories.push_back(std::move(*category));
            } else {
                m_lossy = true;
            }
        }
        // The line before was a marker of none of the others: the end.
        if (!Trim(m_rest).empty()) m_lossy = true;
        return categories;
    }

    bool IsLossy() const { return m_lossy; }

private:
    /// Notes what stands behind the marker, which nobody keeps.
    bool IsMarker(std::u16string_view line, char16_t mark) {
        if (!BeginsWith(line, mark)) return false;
        if (!Trim(line.substr(1)).empty()) m_lossy = true;
        return true;
    }

    /// Up to the next line feed; what stands behind the last one is a line when there is anything.
    std::optional<std::u16string_view> Next() {
        if (m_rest.empty()) return std::nullopt;
        const std::size_t end = std::min(m_rest.find(u'\n'), m_rest.size());
        const std::u16string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        return line;
    }

    /// A name line loses its last character, whatever it is.
    std::optional<std::u16string> NextName() {
        const std::optional<std::u16string_view> line = Next();
        if (!line) return std::nullopt;
        if (!line->ends_with(u'\r')) m_lossy = true;
        return std::u16string(WithoutLast(*line));
    }

    /// Behind the category's marker; leaves the marker after the category in `line`.
    std::optional<PackingCategory> ParseCategory(std::optional<std::u16string_view>& line) {
        std::optional<std::u16string> name = NextName();
        line = Next();
        if (!name || !line || !IsMarker(*line, kListMark)) return std::nullopt;
        PackingCategory category{std::move(*name), {}};
        while (line && BeginsWith(*line, kListMark)) {
            std::optional<std::u16string> listName = NextName();
            if (!listName) return std::nullopt;
            PackingList list{std::move(*listName), {}};
            line = ParseItems(list);
            if (category.lists.size() < kMaxPackingLists) {
                category.lists.push_back(std::move(list));
            } else {
                m_lossy = true;
            }
        }
        return category;
    }

    /// Returns the marker that ends the list; nothing when the text ends first.
    std::optional<std::u16string_view> ParseItems(PackingList& list) {
        for (std::optional<std::u16string_view> line = Next(); line; line = Next()) {
            if (IsMarker(*line, kListMark) || IsMarker(*line, kCategoryMark) || IsMarker(*line, kEndMark)) return line;
            const std::u16string_view ticked = WithoutLast(*line);
            // Too short for a tick and a carriage return.
            if (ticked.empty()) {
                m_lossy = true;
                continue;
            }
            const bool isTicked = ticked.back() == kTicked;
            if (!line->ends_with(isTicked ? u"1\r" : u"0\r")) m_lossy = true;
            list.items.push_back({std::u16string(WithoutLast(ticked)), isTicked});
        }
        return std::nullopt;
    }

    std::u16string_view m_rest;
    bool m_lossy = false;
};

}  // namespace

PackingFile ReadPackingFile(std::string_view bytes) {
    if (bytes.empty()) return {};
    const std::u16string text = IsUtf8(bytes) ? FromUtf8(bytes) : FromWindows1252(bytes);
    CPackingParser parser(text);
    std::optional<std::vector<PackingCategory>> categories = parser.Parse();
    if (!categories) return {CPackingLists(), true};
    return {CPackingLists(std::move(*categories)), parser.IsLossy()};
}

std::string WritePackingFile(const CPackingLists& lists) {
    constexpr std::u16string_view kLineEnd = u"\r\n";
    std::u16string text;
    const auto line = [&text, kLineEnd](std::u16string_view content) { text.append(content).append(kLineEnd); };
    for (const PackingCategory& category : lists.Categories()) {
        line(std::u16string_view(&kCategoryMark, 1));
        line(category.name);
        for (const PackingList& list : category.lists) {
            line(std::u16string_view(&kListMark, 1));
            line(list.name);
            for (const PackingItem& item : list.items)
                line(item.text + (item.ticked ? u'1' : u'0'));
        }
    }
    text.push_back(kEndMark);
    return ToUtf8(text);
}

}  // namespace rlx
