#pragma once

#include <QCheckBox>
#include <QPointer>
#include <QWidget>

#include "platform/message_boxes.h"
#include "shell/texts.h"

namespace rlx {

/// The message boxes of the window, modal to it. Button texts come from the string table. User-interface thread.
class CQtMessageBoxes : public IMessageBoxes {
public:
    explicit CQtMessageBoxes(const ITexts& texts);

    /// The window that boxes stand in front of; without one they stand alone. Not owned.
    void SetOwner(QWidget* owner);

    BoxAnswer Show(const MessageBox& box) override;
    BoxAnswer ShowWithCheck(const MessageBox& box, const std::u16string& checkText, bool& checked) override;

private:
    /// `check` may be null; it stays the caller's.
    BoxAnswer ShowBox(const MessageBox& box, QCheckBox* check);

    const ITexts& m_texts;
    QPointer<QWidget> m_owner;
};

}  // namespace rlx
