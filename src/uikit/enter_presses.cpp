#include "uikit/enter_presses.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QRadioButton>

namespace rlx {

namespace {

bool TakesEnter(QObject* watched) {
    if (qobject_cast<QCheckBox*>(watched) != nullptr || qobject_cast<QRadioButton*>(watched) != nullptr) return false;
    if (qobject_cast<QAbstractButton*>(watched) != nullptr) return true;
    const auto* list = qobject_cast<QComboBox*>(watched);
    return list != nullptr && !list->isEditable() && qobject_cast<QDialog*>(list->window()) == nullptr;
}

}  // namespace

bool CEnterPresses::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!enter || key->isAutoRepeat() || !TakesEnter(watched)) return false;
    // The press may open a menu, and what is chosen there may end the button.
    const QPointer<QObject> button(watched);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        if (button) QCoreApplication::sendEvent(button, &space);
    }
    return true;
}

}  // namespace rlx
