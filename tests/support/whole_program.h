#pragma once

#include <QApplication>

#include "app/application.h"
#include "platform/sqlite/store_opener.h"
#include "support/temp_folder.h"
#include "uikit/window_style.h"

namespace rlx::test {

/// The real application in a home of its own, at 23:30:07 on 10 July 2026.
class CWholeProgram {
public:
    /// Once, before any is started.
    static void SetStyle() {
        QApplication::style()->setParent(qApp);  // else nobody deletes it: it was set before there was an application
        QApplication::setStyle(new CWindowStyle);
    }

    /// Starts it with what `choose` wrote to its settings.
    template <typename Choose>
    void Start(const Choose& choose) {
        WindowOptions options;
        options.home = home.Path().string();
        options.store = (home / "device.db").string();
        options.now = DateTime{{2026, 7, 10}, 23, 30, 7, 0};
        options.bias = 0;
        options.quiet = true;
        {
            const CSystemClock clock;
            const auto opened = OpenDeviceStore(options.store, clock);
            CRegistryStore settings(opened.store->Registry());
            choose(settings);
        }
        m_application.emplace(options);
        Window().setMinimumSize(0, 0);
    }
    CMainWindow& Window() { return m_application->Window(); }

    /// Calls `look` with the name of each view of each screen, while it shows.
    template <typename Look>
    void EachView(const Look& look) {
        for (int i = 0; i < Window().Count(); ++i) {
            Window().ShowScreen(i);
            CScreen& screen = Window().Screen(i);
            for (int view = 0; view < screen.ViewCount(); ++view) {
                screen.ShowView(view);
                look(screen,
                     QString("%1 %2 %3").arg(Window().Entry(i).icon, screen.ViewName(view)).arg(Window().width()));
            }
        }
    }

    CTempFolder home;

private:
    std::optional<CApplication> m_application;
};

}  // namespace rlx::test
