#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "app/application.h"
#include "support/paths.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

/// The keys that the user guide names.
TEST(Keys, LeadWhereTheGuideSays) {
    const test::CTempFolder home;
    WindowOptions options;
    options.home = test::kDataDir;
    options.store = (home / "device.db").string();
    options.quiet = true;
    CApplication application(options);
    CMainWindow& window = application.Window();
    window.show();
    QApplication::processEvents();
    const auto press = [&window](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&window, key, modifiers);
        QApplication::processEvents();
    };
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(window.CurrentIndex(), 1);
    press(Qt::Key_F11);
    EXPECT_TRUE(window.isFullScreen());
    press(Qt::Key_F11);
    EXPECT_FALSE(window.isFullScreen());
    bool opened = false;
    QObject::connect(&window.Menu(), &QMenu::aboutToShow, [&] {
        opened = true;
        QTimer::singleShot(0, &window.Menu(), &QMenu::close);
    });
    press(Qt::Key_F10);
    EXPECT_TRUE(opened);
}

}  // namespace
}  // namespace rlx
