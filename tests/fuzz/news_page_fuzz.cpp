#include <QGuiApplication>
#include <QPainter>
#include <QTextDocument>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/text.h"
#include "news/news_cleaner.h"

namespace {

int g_count = 1;
std::array<char*, 2> g_words = {const_cast<char*>("fuzz"), nullptr};

}  // namespace

// Any bytes as "news.htm": the page is cleaned, what is clean stays as it is, and it is laid out and painted within the
// limits of time and memory.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(g_count, g_words.data());
    const std::u16string page = rlx::FromWindows1252({reinterpret_cast<const char*>(data), size});
    const std::u16string cleaned = rlx::CleanNewsPage(page);
    if (!offscreen || rlx::CleanNewsPage(cleaned) != cleaned) std::abort();
    QTextDocument document;
    document.setHtml(QString::fromStdU16String(cleaned));
    document.setTextWidth(228);
    QImage screen(240, 320, QImage::Format_RGB32);
    QPainter painter(&screen);
    document.drawContents(&painter, screen.rect());
    return 0;
}
