#include "uikit/qt_message_boxes.h"

#include <QMessageBox>
#include <QPushButton>

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
    QMessageBox dialog(IconOf(box.icon), ToQString(box.title), ToQString(box.text), QMessageBox::NoButton, m_owner);
    dialog.setObjectName("messageBox");
    dialog.setTextFormat(Qt::PlainText);
    if (box.buttons == BoxButtons::kOk) {
        QPushButton* ok = dialog.addButton(ToQString(m_texts.Text(kTextOk)), QMessageBox::AcceptRole);
        ok->setObjectName("ok");
        dialog.setEscapeButton(ok);
        dialog.exec();
        return BoxAnswer::kOk;
    }
    QPushButton* yes = dialog.addButton(ToQString(m_texts.Text(kTextYes)), QMessageBox::YesRole);
    QPushButton* no = dialog.addButton(ToQString(m_texts.Text(kTextNo)), QMessageBox::NoRole);
    yes->setObjectName("yes");
    no->setObjectName("no");
    dialog.setDefaultButton(no);
    dialog.setEscapeButton(no);
    dialog.exec();
    return dialog.clickedButton() == yes ? BoxAnswer::kYes : BoxAnswer::kNo;
}

}  // namespace rlx
