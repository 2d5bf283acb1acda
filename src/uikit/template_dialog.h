#pragma once

#include <QDialog>
#include <QWidget>
#include <map>

#include "shell/dialog_template.h"

namespace rlx {

/// A dialog made from a dialog template. The template names the controls, their texts and their order; the layout
/// follows the screen: controls that stand at the same height in the template share a row, lists and long texts take
/// what room is left. OK and Cancel (ids 1 and 2) accept and reject. On a small screen the dialog fills it.
/// User-interface thread.
class CTemplateDialog : public QDialog {
    Q_OBJECT

public:
    explicit CTemplateDialog(const DialogTemplate& dialog, QWidget* parent = nullptr);

    /// The widget of a control; null when the template has none of that id or it is of another class.
    template <typename Widget>
    Widget* Control(int id) const {
        const auto found = m_controls.find(id);
        return found == m_controls.end() ? nullptr : qobject_cast<Widget*>(found->second);
    }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeControl(const DialogControl& control);
    void LayOut(const DialogTemplate& dialog);
    void ConnectButtons();
    void GiveRoomToWhatIsSeen();

    std::map<int, QWidget*> m_controls;
};

}  // namespace rlx
