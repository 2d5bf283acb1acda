#include "tools/tiptax/ui/tip_page.h"

#include "ui/tools/tools_test_device.h"

namespace rlx {
namespace {

class TipPage : public testing::Test {
protected:
    TipPage() {
        m_page.resize(240, 230);
        m_page.show();
    }

    template <typename Widget>
    Widget& Find(const char* name) {
        return *m_page.findChild<Widget*>(name);
    }

    /// As a person does: all selected, then key by key.
    void Type(const char* field, const QString& text) {
        Find<QLineEdit>(field).selectAll();
        QTest::keyClicks(&Find<QLineEdit>(field), text);
    }

    QString Text(const char* label) { return Find<QLabel>(label).text(); }

    test::ToolsDevice m_device;
    CTipPage m_page{m_device.resources, m_device.boxes, m_device.look};
};

TEST_F(TipPage, ComputesAsOneTypes) {
    Type("bill", "100");
    Type("firstRate", "15");
    Type("secondRate", "8");
    EXPECT_EQ(Text("firstAmount"), "= 15.00");
    EXPECT_EQ(Text("secondAmount"), "= 8.00");
    EXPECT_EQ(Text("total"), "123.00");
    Find<QCheckBox>("firstAdded").click();
    EXPECT_EQ(Text("total"), "108.00");
    EXPECT_FALSE(Find<QLabel>("firstIncluded").isHidden());
    EXPECT_TRUE(Find<QLabel>("secondIncluded").isHidden());
}

TEST_F(TipPage, TakesARefusedRateBackAndSaysSoOnce) {
    Type("bill", "50");
    Type("firstRate", "101");
    ASSERT_EQ(m_device.boxes.shown.size(), 1U);
    EXPECT_EQ(m_device.boxes.shown[0].text, u"Value must be between 0% and 100%");
    EXPECT_EQ(Find<QLineEdit>("firstRate").text(), "10");
    EXPECT_EQ(Text("total"), "55.00");
    QTest::keyClick(&Find<QLineEdit>("firstRate"), Qt::Key_0);
    EXPECT_EQ(Text("total"), "100.00");
}

TEST_F(TipPage, SplitsToTheCent) {
    Type("bill", "100");
    EXPECT_EQ(Text("share"), "50.00");
    Find<QToolButton>("more").click();
    EXPECT_EQ(Text("share"), QStringLiteral("1 × 33.34 and 2 × 33.33"));
    Type("bill", "-5");
    EXPECT_EQ(Text("share"), "This total cannot be split.");
}

TEST_F(TipPage, KeysReachTheFieldsFromTopToBottom) {
    m_page.activateWindow();
    m_page.Entered();
    QApplication::processEvents();
    EXPECT_EQ(Find<QLineEdit>("bill").selectedText(), "0");
    QStringList order;
    for (int i = 0; i < 6; ++i) {
        QApplication::processEvents();
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"bill", "firstRate", "firstAdded", "secondRate", "secondAdded", "people"}));
}

}  // namespace
}  // namespace rlx
