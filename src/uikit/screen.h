#pragma once

#include <QWidget>

namespace rlx {

/// One screen of the row. The main window shows one at a time, gives it the whole content area, and passes on what
/// concerns it. A screen asks for the ports that it needs in its own constructor.
class CScreen : public QWidget {
    Q_OBJECT

public:
    explicit CScreen(QWidget* parent = nullptr) : QWidget(parent) {}

    /// Settings, cities, the skin or the language in force have changed: read again what is shown.
    virtual void Refresh() {}

    /// Comes once a second while the screen is seen.
    virtual void Tick() {}

    /// The screen's own commands, shown at the top of the menu. The actions belong to the screen.
    virtual QList<QAction*> Commands() { return {}; }

    /// Asked before another screen is shown or the window closes; false keeps this one.
    virtual bool MayLeave() { return true; }

    /// Asked when the window goes "back" (Escape); true when the screen had somewhere to go back to.
    virtual bool GoBack() { return false; }

    /// Called once the screen is shown for the first time or again.
    virtual void Entered() {}

    /// How many views a set of pictures has to show for the screen to be seen whole.
    virtual int ViewCount() const { return 1; }

    /// Names a view in the pictures' file names; empty for the first.
    virtual QString ViewName(int /*view*/) const { return {}; }

    /// Shows a view, for a picture: asks nothing and remembers nothing.
    virtual void ShowView(int /*view*/) {}
};

}  // namespace rlx
