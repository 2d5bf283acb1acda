#include "uikit/enter_presses.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTest>

namespace rlx {
namespace {

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
