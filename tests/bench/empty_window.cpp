// The least that a Qt Widgets program can be: what the window of Roamlytix is measured against. With a word on the
// command line the window shows it, which takes what every text takes: the fonts are looked for.
#include <QApplication>
#include <QLabel>

int main(int count, char** words) {
    QApplication qt(count, words);
    QLabel window;
    window.resize(480, 640);
    window.setAlignment(Qt::AlignCenter);
    if (count > 1) window.setText(words[1]);
    window.show();
    return QApplication::exec();
}
