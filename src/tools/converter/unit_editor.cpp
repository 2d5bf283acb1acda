#include "tools/converter/unit_editor.h"

#include <algorithm>

#include "shell/boxes.h"
#include "shell/text_ids.h"
#include "tools/converter/text_ids.h"

namespace rlx {

CUnitEditor::CUnitEditor(CUnitDatabase& database, const ITexts& texts, IMessageBoxes& boxes)
    : m_database(database), m_texts(texts), m_boxes(boxes) {}

bool CUnitEditor::Add(std::size_t category, std::u16string_view name, std::u16string_view factor) {
    return Report(m_database.Add(category, name, factor), name);
}

bool CUnitEditor::Delete(std::size_t category, std::u16string_view name) {
    if (category == kTemperatures) return Report(UnitChange::kNotEditable, name);
    const std::vector<UnitRecord> rows = m_database.ReadAll();
    const bool known = std::ranges::any_of(
        rows, [&](const UnitRecord& row) { return row.code == CategoryCode(category) && row.name == name; });
    if (!known) return Report(UnitChange::kNotFound, name);
    const std::u16string question = Around(kTextDeleteBefore, name, kTextUnitAfter);
    if (m_boxes.Show(QuestionBox(m_texts, question)) != BoxAnswer::kYes) return false;
    return Report(m_database.Delete(category, name), name);
}

bool CUnitEditor::Report(UnitChange change, std::u16string_view name) {
    const auto refuse = [this](const std::u16string& text) {
        m_boxes.Show(ErrorBox(m_texts, text));
        return false;
    };
    switch (change) {
        case UnitChange::kDone:
            return true;
        case UnitChange::kEmptyName:
            return refuse(m_texts.Text(kTextUnitNameEmpty));
        case UnitChange::kNotEditable:
            return refuse(m_texts.Text(kTextUnitsNotEditable));
        case UnitChange::kExists:
            return refuse(Around(kTextUnitBefore, name, kTextAlreadyExists));
        case UnitChange::kCategoryFull:
            return refuse(m_texts.Text(kTextCategoryFull));
        case UnitChange::kNotFound:
            return refuse(Around(kTextUnitBefore, name, kTextUnitNotFound));
        case UnitChange::kNotSaved:
            break;
    }
    return refuse(m_texts.Text(kTextUnitsNotSaved));
}

std::u16string CUnitEditor::Around(TextId before, std::u16string_view name, TextId after) const {
    return m_texts.Text(before).append(name) + m_texts.Text(after);
}

}  // namespace rlx
