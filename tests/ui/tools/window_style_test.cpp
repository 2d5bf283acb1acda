#include "uikit/window_style.h"

#include "uikit/enter_presses.h"

namespace rlx {
namespace {

/// A button of a dark skin, whose accent hardly differs from its buttons.
class WindowStyle : public ::testing::Test {
protected:
    QImage Draw(QStyle::State state) {
        QStyleOptionButton option;
        option.rect = {0, 0, 80, 28};
        option.state = state | QStyle::State_Enabled | QStyle::State_Raised;
        option.palette = QPalette(QColor(62, 102, 98), QColor(16, 38, 42));
        option.palette.setColor(QPalette::ButtonText, Qt::white);
        option.palette.setColor(QPalette::Highlight, m_accent);
        option.palette.setColor(QPalette::HighlightedText, Qt::white);
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(QColor(16, 38, 42));
        QPainter painter(&image);
        m_style.drawControl(QStyle::CE_PushButton, &option, &painter, nullptr);
        return image;
    }

    static int Lightness(const QImage& image, const QPoint& at) { return image.pixelColor(at).lightness(); }

    QColor m_accent{28, 90, 110};
    CWindowStyle m_style;
};

TEST_F(WindowStyle, FocusFromTheKeyboardIsSeenOnDarkSkins) {
    const QPoint edge(1, 14);
    const int plain = Lightness(Draw({}), edge);
    EXPECT_GT(Lightness(Draw(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange), edge), plain + 100);
    EXPECT_LT(Lightness(Draw(QStyle::State_HasFocus), edge), plain + 100) << "by a tap";
}

TEST_F(WindowStyle, PressedButtonsDifferInGroundAndFrame) {
    const QImage released = Draw({});
    const QImage pressed = Draw(QStyle::State_On);
    EXPECT_EQ(pressed.pixelColor(10, 5), m_accent);
    EXPECT_GT(Lightness(pressed, {2, 14}), Lightness(released, {2, 14}) + 100);
}

TEST(EnterPresses, TheFocusedButtonRatherThanTheDialogs) {
    CEnterPresses enter;
    qApp->installEventFilter(&enter);
    QDialog dialog;
    auto* ok = new QPushButton(&dialog);
    ok->setDefault(true);
    auto* other = new QPushButton(&dialog);
    other->setAutoDefault(false);
    auto* check = new QCheckBox(&dialog);
    int oks = 0;
    int others = 0;
    QObject::connect(ok, &QPushButton::clicked, [&] { ++oks; });
    QObject::connect(other, &QPushButton::clicked, [&] { ++others; });
    dialog.show();
    QTest::keyClick(other, Qt::Key_Return);
    EXPECT_EQ(others, 1);
    EXPECT_EQ(oks, 0);
    QTest::keyClick(check, Qt::Key_Enter);
    EXPECT_FALSE(check->isChecked());
    EXPECT_EQ(oks, 1);
}

}  // namespace
}  // namespace rlx
