// The least that a Qt Widgets program can be: what the window of Roamlytix is measured against.
#include <QApplication>
#include <QWidget>

int main(int count, char** words) {
    QApplication qt(count, words);
    QWidget window;
    window.resize(480, 640);
    window.show();
    return QApplication::exec();
}
