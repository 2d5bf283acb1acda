#include "app/screenshots.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

namespace rlx {

namespace {

constexpr int kSmallestSide = 100;
constexpr int kLargestSide = 8192;

QString NameOf(const QString& screen, const QString& viewName, const QSize& size) {
    return QStringLiteral("%1%2-%3x%4.png")
        .arg(screen, viewName.isEmpty() ? QString() : "-" + viewName)
        .arg(size.width())
        .arg(size.height());
}

}  // namespace

std::optional<std::vector<QSize>> ParseSizes(const QString& text) {
    std::vector<QSize> sizes;
    for (const QString& word : text.split(',')) {
        const QStringList sides = word.split('x');
        bool widthOk = false;
        bool heightOk = false;
        const int width = sides.value(0).toInt(&widthOk);
        const int height = sides.value(1).toInt(&heightOk);
        const auto inRange = [](int side) { return side >= kSmallestSide && side <= kLargestSide; };
        if (sides.size() != 2 || !widthOk || !heightOk || !inRange(width) || !inRange(height)) return std::nullopt;
        sizes.emplace_back(width, height);
    }
    return sizes;
}

std::optional<QStringList> RenderScreens(CMainWindow& window, const QString& folder, const std::vector<QSize>& sizes) {
    QStringList written;
    for (const QSize& size : sizes) {
        window.setMinimumSize(0, 0);
        window.resize(size);
        window.show();
        for (int i = 0; i < window.Count(); ++i) {
            window.ShowScreen(i);
            CScreen& screen = window.Screen(i);
            for (int view = 0; view < screen.ViewCount(); ++view) {
                const QString path = QDir(folder).filePath(NameOf(window.Entry(i).icon, screen.ViewName(view), size));
                screen.ShowView(view);
                QApplication::processEvents();
                if (!window.grab().save(path)) return std::nullopt;
                written << path;
            }
        }
    }
    return written;
}

}  // namespace rlx
