#include "places/ui/city_row_delegate.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

namespace rlx {

namespace {

constexpr int kPadding = 4;  // pixels around the text
constexpr double kSecondLineSize = 0.88;
constexpr int kSecondLineOpacity = 175;  // of 255

QFont SecondLineFont(const QFont& font) {
    QFont smaller = font;
    if (font.pixelSize() > 0)
        smaller.setPixelSize(std::max(8, static_cast<int>(font.pixelSize() * kSecondLineSize)));
    else
        smaller.setPointSizeF(font.pointSizeF() * kSecondLineSize);
    return smaller;
}

/// The two lines of a cell. An item's text holds the separator that Qt puts for a line end.
QStringList LinesOf(const QStyleOptionViewItem& cell) {
    return QString(cell.text).replace(QChar::LineSeparator, QLatin1Char('\n')).split(QLatin1Char('\n'));
}

void PaintLine(QPainter& painter, const QRect& line, const QString& text, Qt::Alignment alignment) {
    painter.drawText(line, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, line.width()));
}

}  // namespace

void CCityRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStringList lines = LinesOf(cell);
    cell.text.clear();
    const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    painter->save();
    QColor colour =
        cell.palette.color(cell.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text);
    const Qt::Alignment alignment = cell.displayAlignment & Qt::AlignHorizontal_Mask;
    QRect line = cell.rect.adjusted(kPadding, kPadding, -kPadding, 0);
    line.setHeight(QFontMetrics(cell.font).height());
    painter->setFont(cell.font);
    painter->setPen(colour);
    PaintLine(*painter, line, lines.value(0), alignment);
    painter->setFont(SecondLineFont(cell.font));
    colour.setAlpha(kSecondLineOpacity);
    painter->setPen(colour);
    line.moveTop(line.bottom() + 1);
    PaintLine(*painter, line, lines.value(1), alignment);
    painter->restore();
}

QSize CCityRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QFontMetrics first(cell.font);
    const QFontMetrics second(SecondLineFont(cell.font));
    const QStringList lines = LinesOf(cell);
    const int width = std::max(first.horizontalAdvance(lines.value(0)), second.horizontalAdvance(lines.value(1)));
    return {width + 2 * kPadding + 2, first.height() + second.height() + 2 * kPadding};
}

}  // namespace rlx
