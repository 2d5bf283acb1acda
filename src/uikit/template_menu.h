#pragma once

#include <QAction>
#include <QMenu>
#include <functional>
#include <map>

#include "shell/menu_template.h"

namespace rlx {

/// What the program can do for each `CommandId`. Actions are not owned.
class CCommandTable {
public:
    /// Makes a command that calls `act`. The action belongs to `owner`; its text comes with the menu.
    QAction* Add(int commandId, QObject* owner, std::function<void()> act);

    /// Null when the program has no such command.
    QAction* Find(int commandId) const;

private:
    std::map<int, QAction*> m_actions;
};

/// Fills `menu` from a template, in its order. Entries without a command in the table are left out, and so are popups
/// and separators that have nothing to hold or part. User-interface thread.
void FillMenu(QMenu& menu, const MenuTemplate& entries, const CCommandTable& commands);

}  // namespace rlx
