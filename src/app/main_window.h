#pragma once

#include <QGridLayout>
#include <QMenu>
#include <QStackedWidget>
#include <QWidget>
#include <functional>
#include <vector>

#include "app/screen_row.h"
#include "app/title_bar.h"
#include "platform/clock.h"
#include "shell/texts.h"
#include "uikit/look.h"
#include "uikit/screen.h"
#include "uikit/second_ticker.h"

namespace rlx {

/// What the row says of a screen, and how it is made.
struct ScreenEntry {
    int titleText = 0;               ///< number of the text that names it
    QString icon;                    ///< file name in the icons folder, without its extension
    LookPicture ground;              ///< the picture behind it
    std::function<CScreen*()> make;  ///< called once, when the screen is needed first; the window owns what it makes
};

/// The colours of the frame around the screens.
struct FrameColours {
    QColor bar;   ///< ground of title bar and screen row
    QColor text;  ///< on the bar
};

/// The one window: title bar, the screen shown, the row of screens. It knows screens only as `CScreen`, and makes those
/// that are not shown yet once its first frame stands there. User-interface thread.
class CMainWindow : public QWidget {
    Q_OBJECT

public:
    CMainWindow(const IClock& clock, const ITexts& texts);

    /// Appends a screen to the row. One outside the row (News) is reached by `ShowScreen` alone and comes last.
    int AddScreen(ScreenEntry entry, bool inRow = true);

    int Count() const { return static_cast<int>(m_screens.size()); }
    const ScreenEntry& Entry(int index) const { return m_screens[static_cast<std::size_t>(index)].entry; }

    /// The screen of that index, made now unless it was before.
    CScreen& Screen(int index);

    /// Shows the screen of that index; false when the current one does not want to be left.
    bool ShowScreen(int index);
    int CurrentIndex() const { return m_current; }  ///< -1 before the first
    CScreen* Current() const { return m_current < 0 ? nullptr : m_screens[static_cast<std::size_t>(m_current)].screen; }

    /// What a screen will have for itself, without asking how large texts are.
    QSize LikelyContentSize() const;

    /// False for a screen outside the row, and for no screen at all.
    bool IsInRow(int index) const { return index >= 0 && index < m_inRow; }

    /// The menu behind the menu button; its entries come from the caller.
    QMenu& Menu() { return m_menu; }

    void SetColours(const FrameColours& colours);
    void SetFreshNews(bool fresh);

    /// Every screen that is made reads again what it shows.
    void RefreshScreens();

    /// What is to be asked once, when the window stands there and before a screen says something.
    void AskFirst(std::function<void()> ask) { m_askFirst = std::move(ask); }

signals:
    void ScreenShown(int index);
    void NewsChosen();
    void AboutToShowMenu();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Slot {
        ScreenEntry entry;
        CScreen* screen = nullptr;  ///< nothing until it is made
    };

    /// The form of the row that suits the window.
    struct RowForm {
        Qt::Orientation orientation;
        bool labels;
    };

    RowForm Form() const;
    void BeSeen();
    void MakeNextScreen();
    void Arrange();
    void RunTickerWhenSeen();
    void StepScreen(int by);

    const ITexts& m_texts;
    CTitleBar* m_titleBar;
    QStackedWidget* m_stack;
    CScreenRow* m_row;
    QGridLayout* m_layout;
    QMenu m_menu;
    CSecondTicker m_ticker;
    std::vector<Slot> m_screens;
    int m_current = -1;
    int m_inRow = 0;
    bool m_seen = false;  ///< painted since it was shown
    std::function<void()> m_askFirst;
};

}  // namespace rlx
