#pragma once

#include <QToolButton>
#include <QWidget>

#include "shell/menu_template.h"
#include "uikit/template_menu.h"

namespace rlx {

/// A row of buttons, one for each popup of the page's menu, and one that takes the last delete back.
class CPackingBar : public QWidget {
    Q_OBJECT

public:
    CPackingBar(const MenuTemplate& menu, const CCommandTable& commands, QAction* undo, QWidget* parent);

    void SetUndo(bool possible, const QIcon& icon);

private:
    void AddMenuButton(const MenuEntry& entry, const CCommandTable& commands);

    QToolButton* m_undo;
};

}  // namespace rlx
