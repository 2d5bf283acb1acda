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
#include "uikit/screen.h"
#include "uikit/second_ticker.h"

namespace rlx {

/// The colours of the frame around the screens.
struct FrameColours {
    QColor bar;   ///< ground of title bar and screen row
    QColor text;  ///< on the bar
};

/// The one window: title bar, the screen shown, the row of screens. It knows screens only as `CScreen`. User-interface
/// thread.
class CMainWindow : public QWidget {
    Q_OBJECT

public:
    CMainWindow(const IClock& clock, const ITexts& texts);

    /// Appends a screen to the row; the window owns it. A screen outside the row (News) is reached by `ShowScreen`
    /// alone.
    int AddScreen(CScreen* screen, bool inRow = true);

    /// Shows the screen of that index; false when the current one does not want to be left.
    bool ShowScreen(int index);
    int CurrentIndex() const { return m_stack->currentIndex(); }
    CScreen* Current() const;

    /// False for a screen outside the row, and for no screen at all.
    bool IsInRow(int index) const { return index >= 0 && index < m_inRow; }
    const std::vector<CScreen*>& Screens() const { return m_screens; }

    /// The menu behind the menu button; its entries come from the caller.
    QMenu& Menu() { return m_menu; }

    void SetColours(const FrameColours& colours);
    void SetFreshNews(bool fresh);

    /// Every screen reads again what it shows.
    void RefreshScreens();

    /// What is to be asked once, when the window stands there and before a screen says something.
    void AskFirst(std::function<void()> ask) { m_askFirst = std::move(ask); }

signals:
    void ScreenShown(int index);
    void NewsChosen();
    void AboutToShowMenu();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
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
    std::vector<CScreen*> m_screens;
    int m_inRow = 0;
    std::function<void()> m_askFirst;
};

}  // namespace rlx
