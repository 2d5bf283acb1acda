#include "tools/tiptax/ui/tip_card.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "tools/tiptax/ui/tip_rate_row.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kRadius = 12;
constexpr int kLeastLabel = 40;  // pixels; the rest of a long label is drawn smaller

}  // namespace

CTipCard::CTipCard(const ITexts& texts, const CLook& look)
    : m_texts(texts), m_look(look), m_grid(new QGridLayout(this)) {
    setObjectName("tipCard");
    m_grid->setColumnStretch(4, 1);
    m_grid->setContentsMargins(8, 4, 8, 4);
}

/// It lies across the columns of the rates, which need theirs.
void CTipCard::AddRow(int row, int textId, QWidget* field, QLayout* fields) {
    auto* line = new QHBoxLayout;
    auto* label = new QLabel(ToQString(m_texts.Text(textId)), this);
    label->setBuddy(field);
    label->setMinimumWidth(kLeastLabel);
    label->setToolTip(label->text());
    if (qobject_cast<QLabel*>(field) == nullptr) field->setAccessibleName(label->text());
    line->addWidget(label);
    if (fields != nullptr) {
        line->addLayout(fields, 1);
    } else {
        line->addWidget(field, 1);
    }
    m_grid->addLayout(line, row, 0, 1, CTipRateRow::kColumns);
}

/// The ground lets the picture through.
void CTipCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.Card());
    painter.drawRoundedRect(rect(), kRadius, kRadius);
}

}  // namespace rlx
