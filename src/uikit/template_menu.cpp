#include "uikit/template_menu.h"

#include <utility>

#include "uikit/qt_text.h"

namespace rlx {

QAction* CCommandTable::Add(int commandId, QObject* owner, std::function<void()> act) {
    auto* action = new QAction(owner);
    action->setObjectName(QStringLiteral("command_%1").arg(commandId));
    QObject::connect(action, &QAction::triggered, owner, [act = std::move(act)] { act(); });
    m_actions[commandId] = action;
    return action;
}

QAction* CCommandTable::Find(int commandId) const {
    const auto found = m_actions.find(commandId);
    return found == m_actions.end() ? nullptr : found->second;
}

void FillMenu(QMenu& menu, const MenuTemplate& entries, const CCommandTable& commands) {
    bool separate = false;
    const auto before = [&menu, &separate] {
        if (separate && !menu.isEmpty()) menu.addSeparator();
        separate = false;
    };
    for (const MenuEntry& entry : entries) {
        if (entry.kind == MenuEntry::Kind::kSeparator) {
            separate = true;
        } else if (entry.kind == MenuEntry::Kind::kPopup) {
            auto* popup = new QMenu(ToQString(entry.text).trimmed(), &menu);
            FillMenu(*popup, entry.entries, commands);
            if (popup->isEmpty()) {
                delete popup;
                continue;
            }
            before();
            menu.addMenu(popup);
        } else if (QAction* action = commands.Find(entry.id)) {
            before();
            action->setText(ToQString(entry.text));
            menu.addAction(action);
        }
    }
}

}  // namespace rlx
