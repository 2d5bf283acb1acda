#include "tools/packing/packing_notices.h"

#include "shell/boxes.h"
#include "shell/text_ids.h"
#include "tools/packing/text_ids.h"

namespace rlx {

bool CPackingNotices::Refuse(TextId text) {
    m_boxes.Show(ErrorBox(m_texts, m_texts.Text(text)));
    return false;
}

bool CPackingNotices::RefuseNamed(TextId before, std::u16string_view name, TextId after) {
    m_boxes.Show(ErrorBox(m_texts, m_texts.Text(before).append(name) + m_texts.Text(after)));
    return false;
}

bool CPackingNotices::Report(PackingChange change, TextId what, std::u16string_view name) {
    switch (change) {
        case PackingChange::kDone:
            return true;
        case PackingChange::kMaxCategories:
            return Refuse(kTextMaxCategories);
        case PackingChange::kMaxLists:
            return Refuse(kTextMaxLists);
        case PackingChange::kAllCategory:
            return Refuse(kTextCannotDeleteAll);
        case PackingChange::kAllItemsList:
            return Refuse(kTextCannotDeleteAllItems);
        case PackingChange::kExists:
            return RefuseNamed(what, name, kTextAlreadyExists);
        case PackingChange::kBadName:
            return Refuse(kTextNameRefused);
        case PackingChange::kBadItem:
            return Refuse(kTextItemRefused);
        case PackingChange::kNotFound:
            break;
    }
    return RefuseNamed(what, name, kTextPackingNotFound);
}

}  // namespace rlx
