#include <QGuiApplication>
#include <QPainter>
#include <QTextDocument>
#include <array>

#include "base/text.h"
#include "fuzz/target.h"
#include "news/news_cleaner.h"

namespace {

int g_count = 1;
std::array<char*, 2> g_words = {const_cast<char*>("fuzz"), nullptr};

}  // namespace

// Any bytes as "news.htm": the page is cleaned, what is clean stays as it is, and it is laid out and painted within the
// limits of time and memory.
void Try(std::string_view bytes) {
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(g_count, g_words.data());
    const std::u16string page = rlx::FromWindows1252(bytes);
    const std::u16string cleaned = rlx::CleanNewsPage(page);
    FailIf(!offscreen || rlx::CleanNewsPage(cleaned) != cleaned);
    QTextDocument document;
    document.setHtml(QString::fromStdU16String(cleaned));
    document.setTextWidth(228);
    QImage screen(240, 320, QImage::Format_RGB32);
    QPainter painter(&screen);
    document.drawContents(&painter, screen.rect());
}
