#include "tools/packing/ui/packing_prompts.h"

#include "tools/packing/text_ids.h"
#include "tools/packing/ui/add_items_dialog.h"
#include "tools/packing/ui/packing_dialogs.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr std::size_t kLongestItem = 32767;

}  // namespace

bool CPackingPrompts::AddCategory() {
    if (!m_organizer.HasRoomForCategory()) return false;
    const auto take = [this](const std::u16string& name, const std::vector<std::u16string>& items) {
        return m_organizer.AddCategory(name, items);
    };
    return CNewCategoryDialog(m_resources, take, m_parent).exec() == QDialog::Accepted;
}

bool CPackingPrompts::AddList() {
    if (!m_organizer.HasRoomForList()) return false;
    const auto take = [this](const std::u16string& name) { return m_organizer.AddList(name); };
    return AskForText(kTextNewList, {}, kMaxNameLength, take);
}

bool CPackingPrompts::AddItems() {
    CAddItemsDialog(m_organizer, m_resources, m_parent).exec();
    return true;
}

bool CPackingPrompts::EditItem(std::size_t item) {
    const auto take = [this, item](const std::u16string& text) { return m_organizer.EditItem(item, text); };
    const QString text = ToQString(m_organizer.CurrentList().items[item].text);
    return AskForText(kTextEditItem, text, kLongestItem, take);
}

bool CPackingPrompts::AskForText(int title, const QString& text, std::size_t maxLength,
                                 const std::function<bool(const std::u16string&)>& take) {
    CPackingTextDialog dialog(m_resources, title, text, static_cast<int>(maxLength), take, m_parent);
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace rlx
