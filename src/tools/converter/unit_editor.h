#pragma once

#include <cstddef>
#include <string_view>

#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "tools/converter/unit_database.h"

namespace rlx {

/// What the "Edit units" dialog does, with its questions and refusals. Owns nothing; user-interface thread.
class CUnitEditor {
public:
    CUnitEditor(CUnitDatabase& database, const ITexts& texts, IMessageBoxes& boxes);

    /// True when the unit was added; a refusal has been shown.
    bool Add(std::size_t category, std::u16string_view name, std::u16string_view factor);

    /// Asks first. True when the unit was deleted.
    bool Delete(std::size_t category, std::u16string_view name);

private:
    bool Report(UnitChange change, std::u16string_view name);
    std::u16string Around(TextId before, std::u16string_view name, TextId after) const;

    CUnitDatabase& m_database;
    const ITexts& m_texts;
    IMessageBoxes& m_boxes;
};

}  // namespace rlx
