#pragma once

#include <QWidget>

#include "uikit/look.h"

namespace rlx {

/// One page of the Tools screen. The screen paints the page's picture behind it, gives it the whole area below the
/// header and passes on what concerns it. A page leaves mouse events that it does not use to the screen, which takes
/// swipes from them. A page asks for the ports that it needs in its own constructor.
class CToolPage : public QWidget {
    Q_OBJECT

public:
    explicit CToolPage(QWidget* parent = nullptr) : QWidget(parent) {}

    /// Number of the text that names the page. The text is no label: "&" is an "&".
    virtual int TitleText() const = 0;

    /// File name of the icon in the icons folder, without its extension.
    virtual QString IconName() const = 0;

    /// What lies behind the page.
    virtual LookPicture Picture() const { return LookPicture::kCommon; }

    /// The page is shown, for the first time or again: the place to set the focus.
    virtual void Entered() {}

    /// Asked before the list of tools, another page or another screen is shown and before the window closes; false
    /// keeps the page.
    virtual bool MayLeave() { return true; }

    /// Settings, the skin or the language in force have changed: read again what is shown.
    virtual void Refresh() {}

    /// The page's own commands, for the menu of the window. The actions belong to the page.
    virtual QList<QAction*> Commands() { return {}; }

    /// A page lives with the room that it gets: no page makes the window larger.
    QSize minimumSizeHint() const override { return {0, 0}; }
};

}  // namespace rlx
