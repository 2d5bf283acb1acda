#include "tools/packing/packing_lists.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace rlx {

namespace {

constexpr std::u16string_view kMarkers = u">*<";

PackingCategory NewCategory(std::u16string_view name) {
    return {std::u16string(name), {{std::u16string(kAllItemsName), {}}}};
}

/// The exact name goes before one that differs in case.
template <typename Named>
std::optional<std::size_t> FindNamed(const std::vector<Named>& among, std::u16string_view name) {
    auto at = std::ranges::find(among, name, &Named::name);
    if (at == among.end())
        at = std::ranges::find_if(among, [name](const Named& one) { return EqualIgnoringCase(one.name, name); });
    if (at == among.end()) return std::nullopt;
    return static_cast<std::size_t>(at - among.begin());
}

/// What the file gives back: a lone surrogate cannot be written.
std::u16string Writable(std::u16string_view text) {
    return FromUtf8(ToUtf8(text));
}

}  // namespace

bool IsPackingItem(std::u16string_view text) {
    if (Trim(text).empty() || text.find_first_of(u"\r\n") != std::u16string_view::npos) return false;
    return kMarkers.find(text.front()) == std::u16string_view::npos;
}

bool IsPackingName(std::u16string_view name) {
    return IsPackingItem(name) && name.size() <= kMaxNameLength;
}

CPackingLists::CPackingLists() : m_categories{NewCategory(kAllCategoryName)} {}

CPackingLists::CPackingLists(std::vector<PackingCategory> categories) : m_categories(std::move(categories)) {}

bool CPackingLists::Has(ListPlace place) const {
    return place.category < m_categories.size() && place.list < m_categories[place.category].lists.size();
}

std::optional<std::size_t> CPackingLists::FindCategory(std::u16string_view name) const {
    return FindNamed(m_categories, name);
}

std::optional<std::size_t> CPackingLists::FindList(std::size_t category, std::u16string_view name) const {
    if (category >= m_categories.size()) return std::nullopt;
    return FindNamed(m_categories[category].lists, name);
}

std::optional<std::size_t> CPackingLists::FindItem(ListPlace place, std::u16string_view text) const {
    if (!Has(place)) return std::nullopt;
    const std::vector<PackingItem>& items = List(place).items;
    const auto at = std::ranges::find(items, text, &PackingItem::text);
    if (at == items.end()) return std::nullopt;
    return static_cast<std::size_t>(at - items.begin());
}

PackingChange CPackingLists::AddCategory(std::u16string_view name) {
    if (m_categories.size() >= kMaxPackingCategories) return PackingChange::kMaxCategories;
    if (!IsPackingName(name)) return PackingChange::kBadName;
    if (FindCategory(name)) return PackingChange::kExists;
    m_categories.push_back(NewCategory(Writable(name)));
    return PackingChange::kDone;
}

PackingChange CPackingLists::AddList(std::size_t category, std::u16string_view name) {
    if (category >= m_categories.size()) return PackingChange::kNotFound;
    if (m_categories[category].lists.size() >= kMaxPackingLists) return PackingChange::kMaxLists;
    if (!IsPackingName(name)) return PackingChange::kBadName;
    if (FindList(category, name)) return PackingChange::kExists;
    m_categories[category].lists.push_back({Writable(name), {}});
    return PackingChange::kDone;
}

PackingChange CPackingLists::AddItem(ListPlace place, std::u16string_view text) {
    if (!Has(place)) return PackingChange::kNotFound;
    if (!IsPackingItem(text)) return PackingChange::kBadItem;
    const std::u16string item = Writable(text);
    if (FindItem(place, item)) return PackingChange::kExists;
    for (const ListPlace target : {place, ListPlace{place.category, 0}, ListPlace{0, 0}})
        AddMissing(target, item);
    return PackingChange::kDone;
}

PackingChange CPackingLists::EditItem(ListPlace place, std::size_t item, std::u16string_view text) {
    if (!Has(place) || item >= List(place).items.size()) return PackingChange::kNotFound;
    if (!IsPackingItem(text)) return PackingChange::kBadItem;
    const std::u16string after = Writable(text);
    if (const auto same = FindItem(place, after)) return *same == item ? PackingChange::kDone : PackingChange::kExists;
    const std::u16string before = std::exchange(ListAt(place).items[item].text, after);
    Mirror({place.category, 0}, before, after);
    Mirror({0, 0}, before, after);
    return PackingChange::kDone;
}

void CPackingLists::AddMissing(ListPlace place, std::u16string_view text) {
    if (!FindItem(place, text)) ListAt(place).items.push_back({std::u16string(text), false});
}

void CPackingLists::Mirror(ListPlace allItems, std::u16string_view before, std::u16string_view after) {
    const auto old = FindItem(allItems, before);
    if (FindItem(allItems, after)) return;
    if (old && !HoldsElsewhere(allItems, before)) {
        ListAt(allItems).items[*old].text = after;
    } else {
        AddMissing(allItems, after);
    }
}

bool CPackingLists::HoldsElsewhere(ListPlace allItems, std::u16string_view text) const {
    for (std::size_t category = 0; category < m_categories.size(); ++category) {
        if (allItems.category != 0 && category != allItems.category) continue;
        for (std::size_t list = 0; list < m_categories[category].lists.size(); ++list) {
            const ListPlace place{category, list};
            if (place != allItems && FindItem(place, text)) return true;
        }
    }
    return false;
}

PackingChange CPackingLists::SetTicked(ListPlace place, std::size_t item, bool ticked) {
    if (!Has(place) || item >= List(place).items.size()) return PackingChange::kNotFound;
    ListAt(place).items[item].ticked = ticked;
    return PackingChange::kDone;
}

PackingChange CPackingLists::UntickAll(ListPlace place) {
    if (!Has(place)) return PackingChange::kNotFound;
    for (PackingItem& item : ListAt(place).items)
        item.ticked = false;
    return PackingChange::kDone;
}

PackingChange CPackingLists::DeleteCategory(std::size_t category) {
    if (category == 0) return PackingChange::kAllCategory;
    if (category >= m_categories.size()) return PackingChange::kNotFound;
    m_categories.erase(m_categories.begin() + static_cast<std::ptrdiff_t>(category));
    return PackingChange::kDone;
}

PackingChange CPackingLists::DeleteList(ListPlace place) {
    if (!Has(place)) return PackingChange::kNotFound;
    if (place.list == 0) return PackingChange::kAllItemsList;
    std::vector<PackingList>& lists = m_categories[place.category].lists;
    lists.erase(lists.begin() + static_cast<std::ptrdiff_t>(place.list));
    return PackingChange::kDone;
}

PackingChange CPackingLists::DeleteItem(ListPlace place, std::size_t item) {
    if (!Has(place) || item >= List(place).items.size()) return PackingChange::kNotFound;
    std::vector<PackingItem>& items = ListAt(place).items;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(item));
    return PackingChange::kDone;
}

PackingChange CPackingLists::Clear(ListPlace place) {
    if (!Has(place)) return PackingChange::kNotFound;
    if (place.list != 0) {
        ListAt(place).items.clear();
        return PackingChange::kDone;
    }
    for (std::size_t category = 0; category < m_categories.size(); ++category) {
        if (place.category != 0 && category != place.category) continue;
        for (PackingList& list : m_categories[category].lists)
            list.items.clear();
    }
    return PackingChange::kDone;
}

}  // namespace rlx
