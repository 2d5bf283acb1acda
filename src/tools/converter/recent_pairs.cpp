#include "tools/converter/recent_pairs.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "base/number.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr char16_t kFieldEnd = u'\t';
constexpr char16_t kLineEnd = u'\n';

/// Takes the text before `end` off the front; all of it where there is none.
std::u16string_view Take(std::u16string_view& text, char16_t end) {
    const std::size_t at = text.find(end);
    const std::u16string_view taken = text.substr(0, at);
    text.remove_prefix(at == std::u16string_view::npos ? text.size() : at + 1);
    return taken;
}

std::optional<RecentPair> PairOf(std::u16string_view line) {
    const std::u16string_view code = Take(line, kFieldEnd);
    const std::u16string_view from = Take(line, kFieldEnd);
    if (code.size() != 1 || code[0] < u'0' || from.empty() || line.empty()) return std::nullopt;
    const auto category = static_cast<std::size_t>(code[0] - u'0');
    if (category >= kCategoryCount) return std::nullopt;
    return RecentPair{category, std::u16string(from), std::u16string(line)};
}

bool HasUnit(const std::vector<Unit>& units, std::u16string_view name) {
    return std::ranges::find(units, name, &Unit::name) != units.end();
}

}  // namespace

std::vector<RecentPair> LoadRecentPairs(CRegistryStore& settings) {
    const std::u16string stored = settings.ReadString(RootOf(keys::kConverter), keys::kConverter, names::kRecentPairs);
    std::vector<RecentPair> pairs;
    std::u16string_view rest = stored;
    while (!rest.empty() && pairs.size() < kMaxRecentPairs) {
        if (auto pair = PairOf(Take(rest, kLineEnd))) pairs.push_back(*std::move(pair));
    }
    return pairs;
}

bool SaveRecentPairs(CRegistryStore& settings, const std::vector<RecentPair>& pairs) {
    std::u16string text;
    for (const RecentPair& pair : pairs) {
        text += FormatInteger(static_cast<std::int64_t>(pair.category));
        text += kFieldEnd;
        text += pair.from;
        text += kFieldEnd;
        text += pair.to;
        text += kLineEnd;
    }
    return settings.WriteString(RootOf(keys::kConverter), keys::kConverter, names::kRecentPairs, text);
}

bool HasPair(const UnitTables& tables, const RecentPair& pair) {
    if (pair.category >= kCategoryCount) return false;
    const std::vector<Unit>& units = tables[pair.category];
    return HasUnit(units, pair.from) && HasUnit(units, pair.to);
}

}  // namespace rlx
