#include "tools/ui/tools_screen.h"

#include "shell/setting_names.h"
#include "tools/clothing/text_ids.h"
#include "tools/converter/text_ids.h"
#include "tools/dialing/text_ids.h"
#include "ui/tools/tools_test_device.h"

namespace rlx {
namespace {

class CFakePage : public CToolPage {
public:
    explicit CFakePage(int text) : m_text(text) {}
    int TitleText() const override { return m_text; }
    QString IconName() const override { return QStringLiteral("page%1").arg(m_text); }
    void Entered() override { ++entered; }
    bool MayLeave() override { return mayLeave; }

    int entered = 0;
    bool mayLeave = true;

private:
    int m_text;
};

class ToolsScreen : public ::testing::Test {
protected:
    ToolsScreen() {
        screen.AddPage(first);
        screen.AddPage(second);
        screen.resize(240, 250);
        screen.show();
        screen.activateWindow();
        QApplication::setActiveWindow(&screen);
    }

    std::uint32_t Stored() { return device.settings.ReadDwordOr(keys::kRoamlytix, names::kToolPage, 99); }

    test::ToolsDevice device;
    CFakePage* first = new CFakePage(kTextToolConverter);
    CFakePage* second = new CFakePage(kTextToolDialing);
    CToolsScreen screen{device.settings, device.resources, device.look};
};

TEST_F(ToolsScreen, OpensAPageAndGoesBack) {
    EXPECT_FALSE(screen.GoBack()) << "the list has nowhere to go back to";
    auto* card = screen.findChildren<CToolButton*>().at(1);
    QTest::mouseClick(card, Qt::LeftButton);
    EXPECT_EQ(screen.Current(), second);
    EXPECT_EQ(second->entered, 1);
    EXPECT_EQ(Stored(), 2U);
    EXPECT_TRUE(second->isVisible());
    EXPECT_EQ(test::Child<QLabel>(screen, "toolTitle")->text(), "Area & Dialing codes");
    QTest::mouseClick(test::Child<QToolButton>(screen, "backToTools"), Qt::LeftButton);
    EXPECT_EQ(screen.Current(), nullptr);
    EXPECT_EQ(Stored(), 0U);
    QTest::keyClick(card, Qt::Key_Up);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(screen.Current(), first);
    EXPECT_TRUE(screen.GoBack());
    EXPECT_EQ(screen.Current(), nullptr);
}

TEST_F(ToolsScreen, AsksThePageBeforeLeavingIt) {
    screen.ShowPage(0);
    first->mayLeave = false;
    EXPECT_FALSE(screen.MayLeave()) << "another screen, or the end";
    EXPECT_FALSE(screen.GoBack());
    QTest::keyClick(first, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(screen.Current(), first);
    first->mayLeave = true;
    QTest::keyClick(first, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(screen.Current(), second);
    EXPECT_TRUE(screen.MayLeave());
}

TEST_F(ToolsScreen, ASwipeTurnsThePage) {
    screen.ShowPage(0);
    QTest::mousePress(first, Qt::LeftButton, {}, {200, 100});
    QTest::mouseRelease(first, Qt::LeftButton, {}, {60, 110});
    EXPECT_EQ(screen.Current(), second);
    QTest::mousePress(second, Qt::LeftButton, {}, {100, 20});
    QTest::mouseRelease(second, Qt::LeftButton, {}, {180, 180});
    EXPECT_EQ(screen.Current(), second) << "more down than across";
}

TEST_F(ToolsScreen, RemembersThePage) {
    screen.ShowPage(1);
    CToolsScreen next(device.settings, device.resources, device.look);
    next.AddPage(new CFakePage(kTextToolConverter));
    auto* page = new CFakePage(kTextToolDialing);
    next.AddPage(page);
    next.AddPage(new CFakePage(kTextToolClothing));
    EXPECT_EQ(next.Current(), page);
}

}  // namespace
}  // namespace rlx
