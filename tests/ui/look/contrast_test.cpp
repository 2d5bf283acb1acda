#include <set>

#include "base/text.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "support/numbered_names.h"
#include "support/painted_texts.h"
#include "support/paths.h"
#include "support/whole_program.h"
#include "uikit/template_dialog.h"

namespace rlx {
namespace {

constexpr double kLeast = 4.5;

/// The real application in one of the skins that ship.
class Contrast : public ::testing::TestWithParam<const char*> {
protected:
    static void SetUpTestSuite() { test::CWholeProgram::SetStyle(); }

    Contrast() {
        const auto& home = m_program.home.Path();
        std::filesystem::copy(test::kDataDir, home, std::filesystem::copy_options::recursive);
        const std::string skin = *GetParam() == '/' ? home.string() + GetParam() : GetParam();
        m_program.Start([&skin](CRegistryStore& settings) {
            settings.WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkin, FromUtf8(skin));
        });
    }

    CMainWindow& Window() { return m_program.Window(); }

    void Check(QWidget& widget, const QString& where) {
        QApplication::processEvents();
        for (const test::PaintedText& each : test::PaintedTexts(widget)) {
            if (!each.widget->isEnabled()) continue;  // may be faint
            ++m_seen;
            m_worst = std::min(m_worst, each.ratio);
            const QString name = QString(each.widget->metaObject()->className()) + " " + each.widget->objectName();
            if (each.ratio >= kLeast || !m_told.insert(each.text + name).second) continue;
            ADD_FAILURE() << where.toStdString() << ": \"" << each.text.toStdString() << "\" of " << name.toStdString()
                          << ": " << each.ratio << ", " << each.pen.name().toStdString() << " on "
                          << each.ground.name().toStdString();
        }
    }

    test::CWholeProgram m_program;
    std::set<QString> m_told;
    int m_seen = 0;
    double m_worst = 99;
};

TEST_P(Contrast, EveryTextStandsOutFromItsGround) {
    for (const QSize size : {QSize(240, 320), QSize(320, 240), QSize(480, 640), QSize(1280, 800)}) {
        Window().resize(size);
        Window().show();
        m_program.EachView([this](CScreen&, const QString& where) { Check(Window(), where); });
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
