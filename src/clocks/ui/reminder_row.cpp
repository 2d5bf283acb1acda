#include "clocks/ui/reminder_row.h"

#include <QApplication>
#include <QPainter>

namespace rlx {

namespace {

constexpr int kMargin = 5;

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

}  // namespace

void CReminderRow::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStringList lines = index.data().toString().split('\n');
    row.text.clear();
    const QStyle* style = row.widget != nullptr ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    painter->save();
    const bool selected = (row.state & QStyle::State_Selected) != 0;
    painter->setPen(row.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    QRect rest = row.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    for (int line = 0; line < lines.size(); ++line) {
        painter->setFont(line == 0 && lines.size() > 1 ? Bold(row.font) : row.font);
        const QFontMetrics metrics = painter->fontMetrics();
        painter->drawText(rest, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                          metrics.elidedText(lines[line], Qt::ElideRight, rest.width()));
        rest.setTop(rest.top() + metrics.lineSpacing());
    }
    painter->restore();
}

QSize CReminderRow::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto lines = static_cast<int>(index.data().toString().count('\n'));
    const int first = QFontMetrics(lines > 0 ? Bold(option.font) : option.font).lineSpacing();
    return {0, 2 * kMargin + first + lines * option.fontMetrics.lineSpacing()};
}

}  // namespace rlx
