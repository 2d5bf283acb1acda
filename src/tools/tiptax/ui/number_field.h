#pragma once

#include <QLineEdit>

namespace rlx {

/// A field for an amount: a keypad of digits where the device has one, and all selected once it is entered, so that
/// typing replaces what stood there.
class CNumberField : public QLineEdit {
    Q_OBJECT

public:
    explicit CNumberField(QWidget* parent);

protected:
    void focusInEvent(QFocusEvent* event) override;
};

}  // namespace rlx
