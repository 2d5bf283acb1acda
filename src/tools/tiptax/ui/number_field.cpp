#include "tools/tiptax/ui/number_field.h"

#include <QFocusEvent>
#include <QTimer>

namespace rlx {

CNumberField::CNumberField(QWidget* parent) : QLineEdit(parent) {
    setInputMethodHints(Qt::ImhFormattedNumbersOnly | Qt::ImhNoPredictiveText);
    setAlignment(Qt::AlignRight);
}

void CNumberField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return;
    // Behind the press of a mouse, which would place the cursor.
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

}  // namespace rlx
