#include <gtest/gtest.h>

#include <QApplication>
#include <set>

#include "app/application.h"
#include "base/text.h"
#include "platform/sqlite/store_opener.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "support/numbered_names.h"
#include "support/paths.h"
#include "support/temp_folder.h"
#include "support/text_contrast.h"
#include "uikit/template_dialog.h"
#include "uikit/window_style.h"

namespace rlx {
namespace {

namespace fs = std::filesystem;

constexpr double kLeast = 4.5;

/// The real application in one of the skins that ship.
class Contrast : public ::testing::TestWithParam<const char*> {
protected:
    static void SetUpTestSuite() {
        QApplication::style()->setParent(qApp);  // else nobody deletes it: it was set before there was an application
        QApplication::setStyle(new CWindowStyle);
    }

    Contrast() {
        fs::copy(test::kDataDir, m_home.Path(), fs::copy_options::recursive);
        WindowOptions options;
        options.home = m_home.Path().string();
        options.store = (m_home / "device.db").string();
        options.now = DateTime{{2026, 7, 10}, 23, 30, 7, 0};
        options.bias = 0;
        options.quiet = true;
        {
            const CSystemClock clock;
            const auto opened = OpenDeviceStore(options.store, clock);
            CRegistryStore settings(opened.store->Registry());
            const std::string skin = *GetParam() == '/' ? m_home.Path().string() + GetParam() : GetParam();
            settings.WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkin, FromUtf8(skin));
        }
        m_application.emplace(options);
        Window().setMinimumSize(0, 0);
    }

    CMainWindow& Window() { return m_application->Window(); }

    void Check(QWidget& widget, const QString& where) {
        QApplication::processEvents();
        for (const test::TextContrast& each : test::ContrastsOf(widget)) {
            ++m_seen;
            m_worst = std::min(m_worst, each.ratio);
            if (each.ratio >= kLeast || !m_told.insert(each.text + each.widget).second) continue;
            ADD_FAILURE() << where.toStdString() << ": \"" << each.text.toStdString() << "\" of "
                          << each.widget.toStdString() << ": " << each.ratio << ", " << each.pen.name().toStdString()
                          << " on " << each.ground.name().toStdString();
        }
    }

    test::CTempFolder m_home;
    std::optional<CApplication> m_application;
    std::set<QString> m_told;
    int m_seen = 0;
    double m_worst = 99;
};

TEST_P(Contrast, EveryTextStandsOutFromItsGround) {
    for (const QSize size : {QSize(240, 320), QSize(320, 240), QSize(480, 640), QSize(1280, 800)}) {
        Window().resize(size);
        Window().show();
        for (int i = 0; i < Window().Count(); ++i) {
            Window().ShowScreen(i);
            CScreen& screen = Window().Screen(i);
            for (int view = 0; view < screen.ViewCount(); ++view) {
                screen.ShowView(view);
                Check(Window(),
                      QString("%1 %2 %3").arg(Window().Entry(i).icon, screen.ViewName(view)).arg(size.width()));
            }
        }
    }
    const CResources english;
    for (const auto& [name, number] : test::NumberedNames("control_ids.h", "kDialog")) {
        CTemplateDialog dialog(english.Dialog(number).value_or(DialogTemplate{}), &Window());
        dialog.show();
        Check(dialog, QString::fromStdString(name));
    }
    EXPECT_GT(m_seen, 500);
    RecordProperty("worst", std::to_string(m_worst));
}

INSTANTIATE_TEST_SUITE_P(Shipped, Contrast, ::testing::Values("default", "/skins/Night/night.skn"));

}  // namespace
}  // namespace rlx
