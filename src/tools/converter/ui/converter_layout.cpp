#include "tools/converter/ui/converter_layout.h"

#include <algorithm>

namespace rlx {

namespace {

constexpr int kWidest = 560;
constexpr int kHeightForTwoLines = 200;  // below it value and result share a line
constexpr int kSmallestRow = 26;
constexpr int kLargestRow = 44;
constexpr int kLargestGap = 12;
constexpr int kCaptionInFonts = 4;  // width of a caption in font heights

/// Deals out rows from above.
class CRows {
public:
    CRows(const QRect& panel, int row, int gap) : m_panel(panel), m_row(row), m_gap(gap), m_top(panel.top()) {}

    QRect Next() {
        const QRect line(m_panel.left(), m_top, m_panel.width(), m_row);
        m_top += m_row + m_gap;
        return line;
    }

private:
    QRect m_panel;
    int m_row;
    int m_gap;
    int m_top;
};

QRect CutLeft(QRect& line, int width, int gap) {
    const QRect cut(line.left(), line.top(), width, line.height());
    line.setLeft(line.left() + width + gap);
    return cut;
}

QRect CutRight(QRect& line, int width, int gap) {
    const QRect cut(line.right() + 1 - width, line.top(), width, line.height());
    line.setRight(line.right() - width - gap);
    return cut;
}

}  // namespace

ConverterLayout LayOutConverter(const QSize& page) {
    const bool high = page.height() >= kHeightForTwoLines;
    const int rows = high ? 6 : 5;
    const int gap = std::clamp(page.height() / 60, 3, kLargestGap);
    const int margin = std::clamp(page.height() / 40, 4, kLargestGap);
    const int room = page.height() - 2 * margin - (rows - 1) * gap;
    const int row = std::clamp(room / rows, kSmallestRow, kLargestRow);
    const int width = std::min(page.width() - 2 * margin, kWidest);
    const int height = rows * row + (rows - 1) * gap;
    const int top = std::max(margin, std::min((page.height() - height) / 3, page.height() / 6));

    ConverterLayout layout;
    const QRect inner((page.width() - width) / 2, top, width, height);
    layout.panel = inner.adjusted(-margin, -margin, margin, margin);
    layout.font = std::clamp(row * 2 / 5, 11, 16);
    layout.digits = std::clamp(row / 2, 13, 22);
    const int caption = layout.font * kCaptionInFonts;
    CRows lines(inner, row, gap);
    layout.category = lines.Next();
    QRect from = lines.Next();
    QRect values = high ? lines.Next() : QRect();
    QRect to = lines.Next();
    QRect results = lines.Next();
    layout.buttons = lines.Next();
    layout.fromCaption = CutLeft(from, caption, gap);
    layout.toCaption = CutLeft(to, caption, gap);
    if (high) {
        layout.swap = CutRight(values, row, gap);
        layout.copy = CutRight(results, row, gap);
        CutLeft(values, caption, gap);
        CutLeft(results, caption, gap);
        layout.value = values;
        layout.result = results;
    } else {
        layout.swap = CutRight(from, row, gap);
        layout.copy = CutRight(to, row, gap);
        layout.value = CutLeft(results, results.width() * 2 / 5, gap);
        layout.result = results;
    }
    layout.from = from;
    layout.to = to;
    layout.rule = QRect(inner.left(), to.top() - gap / 2 - 1, width, 1);
    return layout;
}

}  // namespace rlx
