#include <gtest/gtest.h>

#include <QApplication>

/// Tests of widgets need an application; it draws to memory where the environment says so.
int main(int count, char** words) {
    QApplication::setStyle("Fusion");
    const QApplication application(count, words);
    ::testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
