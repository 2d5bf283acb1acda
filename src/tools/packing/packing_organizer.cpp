#include "tools/packing/packing_organizer.h"

#include <utility>

#include "base/text.h"
#include "shell/boxes.h"
#include "shell/text_ids.h"
#include "tools/packing/text_ids.h"

namespace rlx {

CPackingOrganizer::CPackingOrganizer(IFileSystem& files, const std::filesystem::path& folder, const ITexts& texts,
                                     IMessageBoxes& boxes)
    : m_store(files, folder), m_texts(texts), m_boxes(boxes), m_notices(texts, boxes) {}

void CPackingOrganizer::Load() {
    m_lists = m_store.Load();
    m_current = {};
    m_changed = false;
    m_beforeDelete.reset();
}

bool CPackingOrganizer::Save() {
    const PackingSave result = m_store.Save(m_lists);
    if (result == PackingSave::kFailed) return m_notices.Refuse(kTextPackingNotSaved);
    m_changed = false;
    if (result == PackingSave::kSavedBesideOther) m_boxes.Show(NoteBox(m_texts, m_texts.Text(kTextPackingVersionKept)));
    return true;
}

bool CPackingOrganizer::Leave() {
    if (!m_changed) return true;
    MessageBox question = QuestionBox(m_texts, m_texts.Text(kTextAskSavePacking));
    question.onEnter = BoxAnswer::kYes;  // who answers in haste keeps what was done
    if (m_boxes.Show(question) == BoxAnswer::kYes) return Save();
    m_changed = false;
    return true;
}

void CPackingOrganizer::SelectCategory(std::size_t category) {
    if (m_lists.Has({category, 0})) m_current = {category, 0};
}

void CPackingOrganizer::SelectList(std::size_t list) {
    if (m_lists.Has({m_current.category, list})) m_current.list = list;
}

bool CPackingOrganizer::SelectNamed(std::u16string_view category, std::u16string_view list) {
    const std::optional<std::size_t> foundCategory = m_lists.FindCategory(category);
    if (!foundCategory) return m_notices.RefuseNamed(kTextCategoryBefore, category, kTextPackingNotFound);
    const std::optional<std::size_t> foundList = list.empty() ? 0 : m_lists.FindList(*foundCategory, list);
    if (!foundList) return m_notices.RefuseNamed(kTextListBefore, list, kTextPackingNotFound);
    m_current = {*foundCategory, *foundList};
    return true;
}

std::optional<std::size_t> CPackingOrganizer::ItemNamed(std::u16string_view text) {
    std::optional<std::size_t> item = m_lists.FindItem(m_current, text);
    for (std::size_t i = 0; !item && i < CurrentList().items.size(); ++i) {
        if (EqualIgnoringCase(CurrentList().items[i].text, text)) item = i;
    }
    if (!item) m_notices.RefuseNamed(kTextItemBefore, text, kTextPackingNotFound);
    return item;
}

std::vector<std::size_t> CPackingOrganizer::VisibleItems() const {
    std::vector<std::size_t> visible;
    const std::vector<PackingItem>& items = CurrentList().items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (m_filter == PackingFilter::kAll || items[i].ticked == (m_filter == PackingFilter::kChecked))
            visible.push_back(i);
    }
    return visible;
}

bool CPackingOrganizer::HasRoomForCategory() {
    return m_lists.Categories().size() < kMaxPackingCategories || m_notices.Refuse(kTextMaxCategories);
}

bool CPackingOrganizer::HasRoomForList() {
    const std::size_t lists = m_lists.Categories()[m_current.category].lists.size();
    return lists < kMaxPackingLists || m_notices.Refuse(kTextMaxLists);
}

bool CPackingOrganizer::AddCategory(std::u16string_view name, const std::vector<std::u16string>& items) {
    if (!Edited(m_lists.AddCategory(name), kTextCategoryBefore, name)) return false;
    m_current = {m_lists.Categories().size() - 1, 0};
    AddItems(items, {m_current});
    return true;
}

bool CPackingOrganizer::AddList(std::u16string_view name) {
    if (!Edited(m_lists.AddList(m_current.category, name), kTextListBefore, name)) return false;
    m_current.list = m_lists.Categories()[m_current.category].lists.size() - 1;
    return true;
}

std::vector<ListPlace> CPackingOrganizer::OtherLists() const {
    std::vector<ListPlace> others;
    for (std::size_t list = 1; list < m_lists.Categories()[m_current.category].lists.size(); ++list) {
        if (list != m_current.list) others.push_back({m_current.category, list});
    }
    return others;
}

std::vector<ListPlace> CPackingOrganizer::OtherCategories() const {
    std::vector<ListPlace> others;
    for (std::size_t category = 1; category < m_lists.Categories().size(); ++category) {
        if (category != m_current.category) others.push_back({category, 0});
    }
    return others;
}

bool CPackingOrganizer::AddItem(std::u16string_view text, const std::vector<ListPlace>& also) {
    if (!IsPackingItem(text)) return m_notices.Report(PackingChange::kBadItem, kTextItemBefore, text);
    // Looked up before anything is added: one addition brings the item to "All Items" too.
    std::vector<ListPlace> missing;
    bool exists = false;
    std::vector<ListPlace> targets{m_current};
    targets.insert(targets.end(), also.begin(), also.end());
    for (const ListPlace target : targets) {
        if (m_lists.FindItem(target, text)) {
            exists = true;
        } else {
            missing.push_back(target);
        }
    }
    const bool added = AddItems({std::u16string(text)}, missing).added > 0;
    if (exists) m_notices.RefuseNamed(kTextItemBefore, text, kTextAlreadyExists);
    return added;
}

PackingAdded CPackingOrganizer::AddItems(const std::vector<std::u16string>& items,
                                         const std::vector<ListPlace>& targets) {
    PackingAdded result;
    for (const std::u16string& item : items) {
        for (const ListPlace target : targets) {
            const PackingChange change = m_lists.AddItem(target, item);
            if (change == PackingChange::kDone) ++result.added;
            if (change == PackingChange::kExists) ++result.existing;
            if (change == PackingChange::kBadItem) ++result.refused;
        }
    }
    if (result.added > 0) Edited(PackingChange::kDone, kTextItemBefore, {});
    if (result.refused > 0) m_notices.Refuse(kTextItemRefused);
    return result;
}

bool CPackingOrganizer::EditItem(std::size_t item, std::u16string_view text) {
    return Edited(m_lists.EditItem(m_current, item, text), kTextItemBefore, text);
}

bool CPackingOrganizer::SetTicked(std::size_t item, bool ticked) {
    return Edited(m_lists.SetTicked(m_current, item, ticked), kTextItemBefore, {});
}

bool CPackingOrganizer::UncheckAll() {
    return Edited(m_lists.UntickAll(m_current), kTextItemBefore, {});
}

bool CPackingOrganizer::DeleteCategory() {
    Snapshot before = Now();
    const PackingChange change = m_lists.DeleteCategory(m_current.category);
    if (change == PackingChange::kDone) m_current = {m_current.category - 1, 0};
    return Deleted(change, std::move(before));
}

bool CPackingOrganizer::DeleteList() {
    Snapshot before = Now();
    const PackingChange change = m_lists.DeleteList(m_current);
    if (change == PackingChange::kDone) --m_current.list;
    return Deleted(change, std::move(before));
}

bool CPackingOrganizer::DeleteItem(std::size_t item) {
    Snapshot before = Now();
    return Deleted(m_lists.DeleteItem(m_current, item), std::move(before));
}

bool CPackingOrganizer::DeleteAllItems() {
    if (m_current.list == 0) {
        const TextId question = m_current.category == 0 ? kTextAskClearEverything : kTextAskClearCategory;
        if (m_boxes.Show(QuestionBox(m_texts, m_texts.Text(question), BoxIcon::kStop)) != BoxAnswer::kYes) return false;
    }
    Snapshot before = Now();
    return Deleted(m_lists.Clear(m_current), std::move(before));
}

bool CPackingOrganizer::UndoDelete() {
    if (!m_beforeDelete) return false;
    m_lists = std::move(m_beforeDelete->lists);
    m_current = m_beforeDelete->current;
    m_beforeDelete.reset();
    m_changed = true;
    return true;
}

bool CPackingOrganizer::Edited(PackingChange change, TextId what, std::u16string_view name) {
    if (change != PackingChange::kDone) return m_notices.Report(change, what, name);
    m_changed = true;
    m_beforeDelete.reset();
    return true;
}

bool CPackingOrganizer::Deleted(PackingChange change, Snapshot before) {
    if (change != PackingChange::kDone) return m_notices.Report(change, kTextItemBefore, {});
    m_changed = true;
    m_beforeDelete = std::move(before);
    return true;
}

}  // namespace rlx
