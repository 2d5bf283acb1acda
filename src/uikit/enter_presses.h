#pragma once

#include <QObject>

namespace rlx {

/// Lets Enter do what Space does on a button or a closed drop-down list that the keys go to; otherwise Enter would mean
/// the screen or the dialog's own button. Check boxes and, in dialogs, lists leave Enter to the dialog. Installed on
/// the application; user-interface thread.
class CEnterPresses : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace rlx
