#include "tools/packing/ui/packing_bar.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kButtonHeight = 28;

}  // namespace

CPackingBar::CPackingBar(const MenuTemplate& menu, const CCommandTable& commands, QAction* undo, QWidget* parent)
    : QWidget(parent), m_undo(new QToolButton(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (const MenuEntry& entry : menu) {
        if (entry.kind == MenuEntry::Kind::kPopup) AddMenuButton(entry, commands);
    }
    m_undo->setObjectName("undoDelete");
    m_undo->setDefaultAction(undo);
    m_undo->setMinimumSize(kButtonHeight, kButtonHeight);
    layout->addWidget(m_undo);
}

void CPackingBar::AddMenuButton(const MenuEntry& entry, const CCommandTable& commands) {
    auto* button = new QPushButton(ToQString(entry.text).trimmed(), this);
    button->setMinimumSize(1, kButtonHeight);
    auto* popup = new QMenu(button);
    FillMenu(*popup, entry.entries, commands);
    button->setMenu(popup);
    layout()->addWidget(button);
}

void CPackingBar::SetUndo(bool possible, const QIcon& icon) {
    m_undo->defaultAction()->setEnabled(possible);
    m_undo->setIcon(icon);
    m_undo->setVisible(possible);
}

}  // namespace rlx
