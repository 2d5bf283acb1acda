#include "tools/clothing/ui/size_table_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <numeric>

#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kSmallestFont = 9;
constexpr int kLargestFont = 18;
constexpr int kHighestLine = 48;
constexpr int kMargin = 2;

QFont Sized(const QFont& font, int pixels, bool bold) {
    QFont sized = font;
    sized.setPixelSize(pixels);
    sized.setBold(bold);
    return sized;
}

/// Widths that the contents need, columns with a gap of half a font height.
SizeGrid Measure(const SizeTable& table, const QFont& font, int pixels) {
    const QFontMetrics labels(Sized(font, pixels, true));
    const QFontMetrics cells(Sized(font, pixels, false));
    SizeGrid grid;
    grid.font = pixels;
    grid.columns.assign(ColumnsOf(table), 0);
    for (const SizeLine& line : table.lines) {
        grid.label = std::max(grid.label, labels.horizontalAdvance(ToQString(line.country)) + pixels / 2);
        for (std::size_t i = 0; i < grid.columns.size(); ++i)
            grid.columns[i] = std::max(grid.columns[i], cells.horizontalAdvance(ToQString(line.cells[i])) + pixels / 2);
    }
    return grid;
}

int WidthOf(const SizeGrid& grid) {
    return std::accumulate(grid.columns.begin(), grid.columns.end(), grid.label);
}

bool NotesFit(const SizeTable& table, const SizeGrid& grid, int width, const QFont& font) {
    const QFontMetrics metrics(Sized(font, grid.font, false));
    return std::ranges::all_of(table.lines, [&](const SizeLine& line) {
        return grid.label + metrics.horizontalAdvance(ToQString(line.note)) <= width;
    });
}

}  // namespace

SizeGrid LayOutSizes(const SizeTable& table, int width, const QFont& font) {
    SizeGrid grid;
    for (int pixels = kLargestFont; pixels >= kSmallestFont && !grid.fits; --pixels) {
        grid = Measure(table, font, pixels);
        grid.fits = WidthOf(grid) <= width && NotesFit(table, grid, width, font);
    }
    const int left = width - WidthOf(grid);
    if (left > 0 && !grid.columns.empty()) {
        // A wide page does not pull the columns far apart.
        const int each = std::min(left / static_cast<int>(grid.columns.size()), 2 * grid.font);
        for (int& column : grid.columns)
            column += each;
    }
    return grid;
}

CSizeTableView::CSizeTableView(QWidget* parent) : QWidget(parent) {
    setObjectName("sizeTable");
}

void CSizeTableView::SetTable(const SizeTable& table) {
    m_table = &table;
    QStringList lines;
    for (const SizeLine& line : table.lines)
        lines << ToQString(LineText(line));
    setAccessibleName(lines.join('\n'));
    update();
}

void CSizeTableView::SetColours(const QColor& first, const QColor& second) {
    m_first = first;
    m_second = second;
    update();
}

void CSizeTableView::paintEvent(QPaintEvent* /*event*/) {
    if (m_table == nullptr) return;
    QPainter painter(this);
    const SizeGrid grid = LayOutSizes(*m_table, width() - 2 * kMargin, font());
    const int lineHeight = std::min(height() / static_cast<int>(kSizeLines), kHighestLine);
    const int left = kMargin + std::max(0, (width() - 2 * kMargin - WidthOf(grid)) / 2);
    int top = (height() - lineHeight * static_cast<int>(kSizeLines)) / 2;
    for (std::size_t i = 0; i < kSizeLines; ++i, top += lineHeight) {
        const SizeLine& line = m_table->lines[i];
        const QColor colour = i % 2 == 0 ? m_first : m_second;
        QColor rule = colour;
        rule.setAlpha(48);
        if (i > 0) painter.fillRect(left, top, WidthOf(grid), 1, rule);
        painter.setPen(colour);
        painter.setFont(Sized(font(), grid.font, true));
        painter.drawText(QRect(left, top, grid.label, lineHeight), Qt::AlignVCenter | Qt::AlignLeft,
                         ToQString(line.country));
        painter.setFont(Sized(font(), grid.font, false));
        int x = left + grid.label;
        if (!line.note.empty()) {
            painter.drawText(QRect(x, top, width() - x, lineHeight), Qt::AlignVCenter | Qt::AlignLeft,
                             ToQString(line.note));
        }
        for (std::size_t column = 0; column < grid.columns.size(); x += grid.columns[column], ++column) {
            painter.drawText(QRect(x, top, grid.columns[column], lineHeight), Qt::AlignCenter,
                             ToQString(line.cells[column]));
        }
    }
}

}  // namespace rlx
