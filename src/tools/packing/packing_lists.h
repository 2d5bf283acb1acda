#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What is to be packed: items in lists, lists in categories. Category 0 is "All" and list 0 of each category is "All
/// Items", which holds the items of all its lists; that of category 0 holds those of all categories.
namespace rlx {

inline constexpr std::size_t kMaxPackingCategories = 10;
inline constexpr std::size_t kMaxPackingLists = 10;  ///< of one category, "All Items" included
inline constexpr std::size_t kMaxNameLength = 50;

/// The names that the file gives to category 0 and to list 0. File content: never translated.
inline constexpr std::u16string_view kAllCategoryName = u"All";
inline constexpr std::u16string_view kAllItemsName = u"All Items";

struct PackingItem {
    std::u16string text;
    bool ticked = false;

    friend bool operator==(const PackingItem&, const PackingItem&) = default;
};

struct PackingList {
    std::u16string name;
    std::vector<PackingItem> items;

    friend bool operator==(const PackingList&, const PackingList&) = default;
};

struct PackingCategory {
    std::u16string name;
    std::vector<PackingList> lists;  ///< never empty

    friend bool operator==(const PackingCategory&, const PackingCategory&) = default;
};

/// One list of one category.
struct ListPlace {
    std::size_t category = 0;
    std::size_t list = 0;

    friend bool operator==(const ListPlace&, const ListPlace&) = default;
};

enum class PackingChange {
    kDone,
    kMaxCategories,
    kMaxLists,
    kAllCategory,   ///< category 0 cannot be deleted
    kAllItemsList,  ///< nor can list 0 of a category
    kExists,        ///< an item of that text, or a category or list of that name
    kBadName,       ///< see `IsPackingName`
    kBadItem,       ///< see `IsPackingItem`
    kNotFound,      ///< no such category, list or item
};

/// True for one line that is not blank and does not begin with a marker of the file (">", "*", "<").
bool IsPackingItem(std::u16string_view text);

/// The same, and of at most `kMaxNameLength` characters.
bool IsPackingName(std::u16string_view name);

/// The lists and the rules for changing them. A change that is refused changes nothing. Plain value; one thread.
class CPackingLists {
public:
    /// Category "All" with an empty list "All Items".
    CPackingLists();

    /// Takes what a file held. `categories` is not empty and each category has a list.
    explicit CPackingLists(std::vector<PackingCategory> categories);

    const std::vector<PackingCategory>& Categories() const { return m_categories; }
    bool Has(ListPlace place) const;
    const PackingList& List(ListPlace place) const { return m_categories[place.category].lists[place.list]; }

    std::optional<std::size_t> FindCategory(std::u16string_view name) const;
    std::optional<std::size_t> FindList(std::size_t category, std::u16string_view name) const;
    std::optional<std::size_t> FindItem(ListPlace place, std::u16string_view text) const;

    /// Appends a category with an empty "All Items". Names are unique, case ignored.
    PackingChange AddCategory(std::u16string_view name);
    PackingChange AddList(std::size_t category, std::u16string_view name);

    /// Appends the item, unticked, to the list, to its category's "All Items" and to that of "All", where it is
    /// missing.
    PackingChange AddItem(ListPlace place, std::u16string_view text);

    /// Gives an item another text; its tick and place stay. "All Items" keep holding every item: there the old text is
    /// replaced, or the new one is added where another list still has the old one.
    PackingChange EditItem(ListPlace place, std::size_t item, std::u16string_view text);

    PackingChange SetTicked(ListPlace place, std::size_t item, bool ticked);
    PackingChange UntickAll(ListPlace place);

    PackingChange DeleteCategory(std::size_t category);
    PackingChange DeleteList(ListPlace place);

    /// From that list only.
    PackingChange DeleteItem(ListPlace place, std::size_t item);

    /// Empties a list. "All Items" empties all lists of its category, that of "All" the lists of all categories.
    PackingChange Clear(ListPlace place);

    friend bool operator==(const CPackingLists&, const CPackingLists&) = default;

private:
    PackingList& ListAt(ListPlace place) { return m_categories[place.category].lists[place.list]; }
    void AddMissing(ListPlace place, std::u16string_view text);
    void Mirror(ListPlace allItems, std::u16string_view before, std::u16string_view after);
    bool HoldsElsewhere(ListPlace allItems, std::u16string_view text) const;

    std::vector<PackingCategory> m_categories;
};

}  // namespace rlx
