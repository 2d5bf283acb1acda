#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "tools/packing/packing_lists.h"
#include "tools/packing/packing_notices.h"
#include "tools/packing/packing_store.h"

namespace rlx {

enum class PackingFilter { kAll, kChecked, kUnchecked };

/// What became of several items that were added at once.
struct PackingAdded {
    std::size_t added = 0;
    std::size_t existing = 0;
    std::size_t refused = 0;
};

/// The packing list page: the lists, what is selected of them, every action with its questions and refusals, and
/// saving. An action returns true when it was done; what stood against it has been shown. Does not own the ports;
/// user-interface thread.
class CPackingOrganizer {
public:
    CPackingOrganizer(IFileSystem& files, const std::filesystem::path& folder, const ITexts& texts,
                      IMessageBoxes& boxes);

    /// Reads the file and selects the first list.
    void Load();

    /// Writes the file whether anything changed or not.
    bool Save();

    /// Asks whether to save what was changed. False when saving was wanted and failed: the page had better stay.
    bool Leave();

    bool IsChanged() const { return m_changed; }

    const CPackingLists& Lists() const { return m_lists; }
    ListPlace Current() const { return m_current; }
    const PackingList& CurrentList() const { return m_lists.List(m_current); }
    void SelectCategory(std::size_t category);
    void SelectList(std::size_t list);

    /// By names; an empty list name means "All Items". A name that is not there is told.
    bool SelectNamed(std::u16string_view category, std::u16string_view list);

    /// The place of an item of the current list: that text, or the first that differs in case alone. One that is not
    /// there is told.
    std::optional<std::size_t> ItemNamed(std::u16string_view text);

    PackingFilter Filter() const { return m_filter; }
    void SetFilter(PackingFilter filter) { m_filter = filter; }

    /// Places in the current list of the items that the filter shows.
    std::vector<std::size_t> VisibleItems() const;

    /// Whether one more fits; where it does not, that is told.
    bool HasRoomForCategory();
    bool HasRoomForList();

    /// The new category becomes current; `items` (of a template, say) go to its "All Items".
    bool AddCategory(std::u16string_view name, const std::vector<std::u16string>& items = {});

    /// In the current category; the new list becomes current.
    bool AddList(std::u16string_view name);

    /// The current category's own lists besides the current one.
    std::vector<ListPlace> OtherLists() const;

    /// "All Items" of the categories besides the current one and "All", which gets every item anyway.
    std::vector<ListPlace> OtherCategories() const;

    /// To the current list and to those of `also`. Lists that have the item already are told once, and the others get
    /// it.
    bool AddItem(std::u16string_view text, const std::vector<ListPlace>& also = {});

    /// Many items at once to many lists; those that are there already are passed over.
    PackingAdded AddItems(const std::vector<std::u16string>& items, const std::vector<ListPlace>& targets);

    bool EditItem(std::size_t item, std::u16string_view text);
    bool SetTicked(std::size_t item, bool ticked);
    bool UncheckAll();

    bool DeleteCategory();
    bool DeleteList();
    bool DeleteItem(std::size_t item);

    /// Empties the current list; asks first when "All Items" would take other lists with it.
    bool DeleteAllItems();

    /// The last delete can be taken back until something else is changed.
    bool CanUndoDelete() const { return m_beforeDelete.has_value(); }
    bool UndoDelete();

private:
    struct Snapshot {
        CPackingLists lists;
        ListPlace current;
    };

    bool Edited(PackingChange change, TextId what, std::u16string_view name);
    bool Deleted(PackingChange change, Snapshot before);
    Snapshot Now() const { return {m_lists, m_current}; }

    CPackingStore m_store;
    const ITexts& m_texts;
    IMessageBoxes& m_boxes;
    CPackingNotices m_notices;
    CPackingLists m_lists;
    ListPlace m_current;
    PackingFilter m_filter = PackingFilter::kAll;
    bool m_changed = false;
    std::optional<Snapshot> m_beforeDelete;
};

}  // namespace rlx
