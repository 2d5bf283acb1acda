#include "uikit/qt_message_boxes.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::kInformation:
            return QMessageBox::Information;
        case BoxIcon::kQuestion:
            return QMessageBox::Question;
        case BoxIcon::kExclamation:
            return QMessageBox::Warning;
        case BoxIcon::kStop:
            return QMessageBox::Critical;
        case BoxIcon::kNone:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

CQtMessageBoxes::CQtMessageBoxes(const ITexts& texts) : m_texts(texts) {}

void CQtMessageBoxes::SetOwner(QWidget* owner) {
    m_owner = owner;
}

BoxAnswer CQtMessageBoxes::Show(const MessageBox& box) {
    return ShowBox(box, nullptr);
}

BoxAnswer CQtMessageBoxes::ShowWithCheck(const MessageBox& box, const std::u16string& checkText, bool& checked) {
    QCheckBox check(ToQString(checkText));
    check.setObjectName("check");
    const BoxAnswer answer = ShowBox(box, &check);
    checked = check.isChecked();
    return answer;
}

BoxAnswer CQtMessageBoxes::ShowBox(const MessageBox& box, QCheckBox* check) {
    QMessageBox dialog(IconOf(box.icon), ToQString(box.title), ToQString(box.text), QMessageBox::NoButton, m_owner);
    dialog.setObjectName("messageBox");
    dialog.setTextFormat(Qt::PlainText);
    dialog.setInformativeText(ToQString(box.question));
    dialog.setCheckBox(check);
    if (box.buttons == BoxButtons::kOk) {
        QPushButton* ok = dialog.addButton(ToQString(m_texts.Text(kTextOk)), QMessageBox::AcceptRole);
        ok->setObjectName("ok");
        dialog.setEscapeButton(ok);
        dialog.exec();
        if (check != nullptr) check->setParent(nullptr);
        return BoxAnswer::kOk;
    }
    QPushButton* yes = dialog.addButton(ToQString(m_texts.Text(kTextYes)), QMessageBox::YesRole);
    QPushButton* no = dialog.addButton(ToQString(m_texts.Text(kTextNo)), QMessageBox::NoRole);
    yes->setObjectName("yes");
    no->setObjectName("no");
    dialog.setDefaultButton(box.onEnter == BoxAnswer::kYes ? yes : no);
    dialog.setEscapeButton(no);
    dialog.exec();
    if (check != nullptr) check->setParent(nullptr);  // the caller's, not the box's
    return dialog.clickedButton() == yes ? BoxAnswer::kYes : BoxAnswer::kNo;
}

}  // namespace rlx
