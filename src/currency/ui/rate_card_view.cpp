#include "currency/ui/rate_card_view.h"

#include <QPainter>
#include <algorithm>

#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr double kRadius = 8;
constexpr int kPadding = 12;
constexpr int kTitleHeight = 32;
constexpr int kLeastLine = 24;
constexpr int kMostLine = 36;
constexpr int kUsualLines = 12;
constexpr int kTitleFont = 16;
constexpr int kDayFont = 12;

}  // namespace

CRateCardView::CRateCardView(const CLook& look, QWidget* parent) : QWidget(parent), m_look(look) {
    setObjectName("rateCard");
}

void CRateCardView::Show(const QString& title, const QString& day, std::vector<RateCardRow> rows) {
    m_title = title;
    m_day = day;
    m_rows = std::move(rows);
    Describe();
    update();
}

int CRateCardView::LineHeight() const {
    return std::clamp((height() - kTitleHeight - 2 * kPadding) / kUsualLines, kLeastLine, kMostLine);
}

std::size_t CRateCardView::Lines() const {
    const int fitting = std::max(0, height() - kTitleHeight - 2 * kPadding) / LineHeight();
    return std::min(m_rows.size(), static_cast<std::size_t>(fitting));
}

void CRateCardView::Describe() {
    QStringList lines{m_title};
    for (std::size_t i = 0; i < Lines(); ++i)
        lines << ToQString(m_rows[i].worth + u" " + m_rows[i].code + u", " + m_rows[i].name);
    lines << m_day;
    setAccessibleDescription(lines.join('\n'));
}

void CRateCardView::resizeEvent(QResizeEvent* /*event*/) {
    Describe();
}

void CRateCardView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.Colour(SkinKey::kCurrencyPanC));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    painter.setPen(m_look.Colour(SkinKey::kCurrencySTC));
    const QRect room = rect().adjusted(kPadding, kPadding, -kPadding, -kPadding);
    QFont small = font();
    small.setPixelSize(kDayFont);
    painter.setFont(small);
    painter.drawText(QRect(room.left(), room.top(), room.width(), kTitleHeight - 6), Qt::AlignRight | Qt::AlignVCenter,
                     m_day);
    QFont large = font();
    large.setPixelSize(kTitleFont);
    large.setBold(true);
    painter.setFont(large);
    painter.drawText(QRect(room.left(), room.top(), room.width(), kTitleHeight - 6), Qt::AlignVCenter, m_title);
    QRect line(room.left(), room.top() + kTitleHeight, room.width(), LineHeight());
    for (std::size_t i = 0; i < Lines(); ++i) {
        PaintLine(painter, line, m_rows[i]);
        line.translate(0, line.height());
    }
}

/// The amount is whole; the name gives way to it.
void CRateCardView::PaintLine(QPainter& painter, const QRect& line, const RateCardRow& row) const {
    const QColor text = m_look.Colour(SkinKey::kCurrencySTC);
    QColor rule = text;
    rule.setAlpha(40);
    painter.fillRect(QRect(line.left(), line.top(), line.width(), 1), rule);
    QFont plain = font();
    plain.setPixelSize(line.height() / 2);
    QFont bold = plain;
    bold.setBold(true);
    painter.setPen(text);
    painter.setFont(bold);
    painter.drawText(line, Qt::AlignVCenter, ToQString(row.code));
    const QString worth = ToQString(row.worth);
    const int worthWidth = painter.fontMetrics().horizontalAdvance(worth);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, worth);
    painter.setFont(plain);
    const QRect name = line.adjusted(line.height() * 7 / 4, 0, -worthWidth - kPadding, 0);
    painter.drawText(name, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(ToQString(row.name), Qt::ElideRight, name.width()));
}

}  // namespace rlx
