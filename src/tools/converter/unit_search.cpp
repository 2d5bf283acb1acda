#include "tools/converter/unit_search.h"

#include <algorithm>

#include "base/text.h"
#include "tools/converter/text_ids.h"

namespace rlx {

namespace {

constexpr std::size_t kMaxCandidates = 10;

using Places = std::vector<std::size_t>;

template <typename Predicate>
Places PlacesWhere(const std::vector<Unit>& units, Predicate fits) {
    Places places;
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (fits(units[i].name)) places.push_back(i);
    }
    return places;
}

Places WholeNames(const std::vector<Unit>& units, std::u16string_view text, bool exactly) {
    const std::u16string folded = FoldCase(Trim(text));
    return PlacesWhere(
        units, [&](const std::u16string& name) { return exactly ? name == text : FoldCase(Trim(name)) == folded; });
}

Places Beginnings(const std::vector<Unit>& units, std::u16string_view text) {
    const std::u16string prefix = Trim(text);
    if (prefix.empty()) return {};
    return PlacesWhere(units, [&](const std::u16string& name) { return BeginsIgnoringCase(Trim(name), prefix); });
}

/// The units of one category that the text may mean; more than one only for an ambiguous beginning.
Places Resolve(const std::vector<Unit>& units, std::u16string_view text) {
    for (const bool exactly : {true, false}) {
        Places places = WholeNames(units, text, exactly);
        if (places.empty()) continue;
        places.resize(1);
        return places;
    }
    return Beginnings(units, text);
}

/// The categories that hold the text as a whole name, in its exact letters where there is one.
Places CategoriesOfWhole(const UnitTables& tables, std::u16string_view text) {
    for (const bool exactly : {true, false}) {
        Places categories;
        for (std::size_t category = 0; category < tables.size(); ++category) {
            if (!WholeNames(tables[category], text, exactly).empty()) categories.push_back(category);
        }
        if (!categories.empty()) return categories;
    }
    return {};
}

UnitPair Failed(PairStatus status, std::u16string_view word) {
    UnitPair pair;
    pair.status = status;
    pair.word = word;
    return pair;
}

/// Both names within one category.
UnitPair FindIn(const UnitTables& tables, std::size_t category, std::u16string_view from, std::u16string_view to) {
    const std::vector<Unit>& units = tables.at(category);
    UnitPair pair;
    pair.category = category;
    for (const auto& [text, place] : {std::pair(from, &pair.from), std::pair(to, &pair.to)}) {
        const Places places = Resolve(units, text);
        if (places.size() == 1) {
            *place = places.front();
            continue;
        }
        UnitPair failed = Failed(places.empty() ? PairStatus::kNotFound : PairStatus::kAmbiguous, text);
        for (std::size_t i = 0; i < std::min(places.size(), kMaxCandidates); ++i)
            failed.candidates.push_back(units[places[i]].name);
        return failed;
    }
    pair.status = PairStatus::kFound;
    return pair;
}

bool IsKnown(const UnitTables& tables, std::u16string_view text) {
    return std::ranges::any_of(tables, [&](const auto& units) { return !Resolve(units, text).empty(); });
}

/// Neither is a whole name: the one category in which both beginnings fit.
UnitPair FindByBeginnings(const UnitTables& tables, std::u16string_view from, std::u16string_view to) {
    std::vector<UnitPair> found;
    UnitPair ambiguous;
    Places categories;
    for (std::size_t category = 0; category < tables.size(); ++category) {
        UnitPair pair = FindIn(tables, category, from, to);
        if (pair.status == PairStatus::kAmbiguous) ambiguous = pair;
        if (pair.status != PairStatus::kFound) continue;
        found.push_back(std::move(pair));
        categories.push_back(category);
    }
    if (found.size() == 1) return found.front();
    if (found.size() > 1) {
        UnitPair failed = Failed(PairStatus::kNeedsCategory, from);
        failed.categories = std::move(categories);
        return failed;
    }
    for (const std::u16string_view text : {from, to}) {
        if (!IsKnown(tables, text)) return Failed(PairStatus::kNotFound, text);
    }
    return ambiguous.status == PairStatus::kAmbiguous ? ambiguous : Failed(PairStatus::kDifferentCategories, to);
}

}  // namespace

std::vector<std::size_t> MatchingUnits(const std::vector<Unit>& units, std::u16string_view text) {
    const std::u16string wanted = FoldForSearch(Trim(text));
    std::vector<std::size_t> matches;
    std::vector<std::size_t> within;
    for (std::size_t i = 0; i < units.size(); ++i) {
        const std::size_t at = FoldForSearch(units[i].name).find(wanted);
        if (at == 0) matches.push_back(i);
        if (at != 0 && at != std::u16string::npos) within.push_back(i);
    }
    matches.insert(matches.end(), within.begin(), within.end());
    return matches;
}

UnitPair FindUnitPair(const UnitTables& tables, std::u16string_view from, std::u16string_view to,
                      std::optional<std::size_t> category) {
    if (category) return FindIn(tables, *category, from, to);
    std::optional<std::size_t> known;
    for (const std::u16string_view text : {from, to}) {
        const Places categories = CategoriesOfWhole(tables, text);
        if (categories.size() > 1) {
            UnitPair failed = Failed(PairStatus::kNeedsCategory, text);
            failed.categories = categories;
            return failed;
        }
        if (categories.empty()) continue;
        if (known && *known != categories.front()) return Failed(PairStatus::kDifferentCategories, text);
        known = categories.front();
    }
    if (!known) return FindByBeginnings(tables, from, to);
    UnitPair pair = FindIn(tables, *known, from, to);
    if (pair.status == PairStatus::kNotFound && IsKnown(tables, pair.word))
        pair.status = PairStatus::kDifferentCategories;
    return pair;
}

std::u16string PairMessage(const UnitPair& pair, const ITexts& texts) {
    const auto named = [&](TextId after) { return texts.Text(kTextUnitBefore) + pair.word + texts.Text(after); };
    const auto listed = [](std::u16string text, const std::vector<std::u16string>& names) {
        for (std::size_t i = 0; i < names.size(); ++i)
            text += (i == 0 ? u"" : u"; ") + names[i];
        return text;
    };
    std::vector<std::u16string> categories;
    switch (pair.status) {
        case PairStatus::kFound:
            return {};
        case PairStatus::kNotFound:
            return named(kTextUnitNotFound);
        case PairStatus::kAmbiguous:
            return listed(named(kTextUnitAmbiguous), pair.candidates);
        case PairStatus::kNeedsCategory:
            for (const std::size_t category : pair.categories)
                categories.push_back(CategoryCode(category) + u" " + CategoryName(category, texts));
            return listed(named(kTextUnitNeedsCategory), categories);
        case PairStatus::kDifferentCategories:
            break;
    }
    return named(kTextUnitsOfDifferentCategories);
}

}  // namespace rlx
