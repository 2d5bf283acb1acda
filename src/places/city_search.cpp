#include "places/city_search.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"

namespace rlx {

namespace {

constexpr int kRanks = 5;
constexpr int kNoMatch = kRanks;

/// The characters that are equal to `unit` when case is ignored, ascending.
std::vector<char16_t> CaseVariants(char16_t unit) {
    constexpr char16_t kEndOfCased = 0x530;  // behind Latin, Greek and Cyrillic
    const std::u16string folded = FoldCase({&unit, 1});
    std::vector<char16_t> variants;
    for (char16_t candidate = 0; candidate < kEndOfCased; ++candidate) {
        if (FoldCase({&candidate, 1}) == folded) variants.push_back(candidate);
    }
    if (unit >= kEndOfCased) variants.push_back(unit);
    return variants;
}

bool IsBetweenWords(char16_t unit) {
    return std::u16string_view(u" -'./(,").find(unit) != std::u16string_view::npos;
}

bool HasWordThatBeginsWith(std::u16string_view text, std::u16string_view beginning) {
    for (std::size_t at = text.find(beginning); at != std::u16string_view::npos; at = text.find(beginning, at + 1)) {
        if (at == 0 || IsBetweenWords(text[at - 1])) return true;
    }
    return false;
}

}  // namespace

std::vector<CityIndex> CCitySearch::FindByBeginning(std::u16string_view text) {
    std::vector<CityIndex> found;
    const auto collect = [&](CityIndex from, CityIndex end) {
        for (CityIndex index = from; index < end; ++index) {
            if (BeginsIgnoringCase(m_cities.GetName(index), text)) found.push_back(index);
        }
    };
    const auto count = static_cast<CityIndex>(m_cities.Count());
    if (text.empty()) {
        collect(0, count);
        return found;
    }
    // The order of the indexes tells capital and small letters apart: one stretch for each.
    for (const char16_t first : CaseVariants(text.front())) {
        const auto next = static_cast<char16_t>(first + 1);
        collect(FirstFrom({&first, 1}), next == 0 ? count : FirstFrom({&next, 1}));
    }
    return found;
}

/// The first city whose place does not sort before `place`.
CityIndex CCitySearch::FirstFrom(std::u16string_view place) {
    CityIndex low = 0;
    for (auto high = static_cast<CityIndex>(m_cities.Count()); low < high;) {
        const CityIndex middle = low + (high - low) / 2;
        if (m_cities.GetPlace(middle) < place)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

std::optional<CityIndex> CCitySearch::FindPlace(std::u16string_view place) {
    const CityIndex found = FirstFrom(place);
    if (place.empty() || m_cities.GetPlace(found) != place) return std::nullopt;
    return found;
}

std::vector<CityIndex> CCitySearch::Find(std::u16string_view text) {
    Load();
    const std::u16string folded = FoldForSearch(Trim(text));
    std::array<std::vector<CityIndex>, kRanks> byRank;
    for (std::size_t index = 0; index < m_entries.size(); ++index) {
        const int rank = RankOf(m_entries[index], folded);
        if (rank != kNoMatch) byRank[static_cast<std::size_t>(rank)].push_back(static_cast<CityIndex>(index));
    }
    std::vector<CityIndex> found;
    for (const auto& rank : byRank)
        found.insert(found.end(), rank.begin(), rank.end());
    return found;
}

void CCitySearch::Load() {
    if (!m_entries.empty()) return;
    const std::vector<std::u16string> places = m_cities.Places();
    m_entries.reserve(places.size());
    for (const std::u16string& place : places) {
        Entry entry{FoldForSearch(place), 0};
        // Folding leaves the ":" between name and country alone.
        entry.nameLength = std::min(entry.text.find(u':'), entry.text.size());
        if (entry.nameLength < entry.text.size()) entry.text[entry.nameLength] = u' ';
        m_entries.push_back(std::move(entry));
    }
}

int CCitySearch::RankOf(const Entry& entry, std::u16string_view folded) {
    const std::u16string_view all = entry.text;
    const std::u16string_view name = all.substr(0, entry.nameLength);
    if (all.find(folded) == std::u16string_view::npos) return kNoMatch;
    if (name == folded) return 0;
    if (all.starts_with(folded)) return 1;
    if (HasWordThatBeginsWith(name, folded)) return 2;
    return HasWordThatBeginsWith(all.substr(entry.nameLength), folded) ? 3 : 4;
}

}  // namespace rlx
