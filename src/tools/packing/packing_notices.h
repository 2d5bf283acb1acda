#pragma once

#include <string_view>

#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "tools/packing/packing_lists.h"

namespace rlx {

/// Says what stands against a change of the packing lists. Each returns false, so that an action can end with it. Does
/// not own the ports; user-interface thread.
class CPackingNotices {
public:
    CPackingNotices(const ITexts& texts, IMessageBoxes& boxes) : m_texts(texts), m_boxes(boxes) {}

    bool Refuse(TextId text);

    /// `before` and `after` stand around the name.
    bool RefuseNamed(TextId before, std::u16string_view name, TextId after);

    /// What a change came to; says nothing of one that is done, and returns true. `what` stands before the name of what
    /// was to be changed.
    bool Report(PackingChange change, TextId what, std::u16string_view name);

private:
    const ITexts& m_texts;
    IMessageBoxes& m_boxes;
};

}  // namespace rlx
