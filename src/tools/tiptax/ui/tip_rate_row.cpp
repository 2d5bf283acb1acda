#include "tools/tiptax/ui/tip_rate_row.h"

#include "tools/tiptax/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kLeastCaption = 40;  // pixels; the rest of a long caption is drawn smaller

}  // namespace

CTipRateRow::CTipRateRow(const QString& name, const QString& label, const ITexts& texts, QGridLayout& grid, int row,
                         QWidget* parent)
    : QObject(parent),
      m_grid(grid),
      m_row(row),
      m_rate(new CNumberField(parent)),
      m_added(new QCheckBox(ToQString(texts.Text(kTextAddToBill)), parent)),
      m_amount(new CFittedLabel(parent)),
      m_included(new QLabel(ToQString(texts.Text(kTextIncludedInBill)), parent)) {
    m_rate->setObjectName(name + "Rate");
    m_added->setObjectName(name + "Added");
    m_amount->setObjectName(name + "Amount");
    m_included->setObjectName(name + "Included");
    auto* caption = new QLabel(label, parent);
    caption->setBuddy(m_rate);
    caption->setMinimumWidth(kLeastCaption);
    caption->setToolTip(label);
    m_rate->setAccessibleName(label);
    m_added->setAccessibleName(label + " " + m_added->text());
    m_amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(caption, row, 0);
    grid.addWidget(m_rate, row, 1);
    grid.addWidget(new QLabel(ToQString(texts.Text(kTextPercent)), parent), row, 2);
    grid.addWidget(m_added, row, 3);
    SetNarrow(false);
    connect(m_rate, &QLineEdit::textEdited, this, &CTipRateRow::RateEdited);
    connect(m_added, &QCheckBox::clicked, this, &CTipRateRow::AddedChanged);
}

void CTipRateRow::SetNarrow(bool narrow) {
    m_grid.removeWidget(m_amount);
    m_grid.removeWidget(m_included);
    m_grid.addWidget(m_amount, narrow ? m_row + 1 : m_row, narrow ? 3 : 4, 1, narrow ? 2 : 1);
    m_grid.addWidget(m_included, m_row + 1, narrow ? 0 : 1, 1, narrow ? 3 : 4);
    m_included->setAlignment((narrow ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
}

void CTipRateRow::Show(const CTipCalculator& tip, TipRate rate) {
    const QString text = ToQString(tip.RateText(rate));
    if (m_rate->text() != text) m_rate->setText(text);
    m_added->setChecked(tip.IsAdded(rate));
    m_included->setVisible(!tip.IsAdded(rate));
    m_amount->Show(ToQString(tip.AmountText(rate)));
}

}  // namespace rlx
