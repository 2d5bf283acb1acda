#include "tools/tiptax/ui/split_rows.h"

#include <QHBoxLayout>

#include "base/number.h"
#include "shell/fill_text.h"
#include "tools/tiptax/bill_split.h"
#include "tools/tiptax/text_ids.h"
#include "uikit/icons.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kFirstPeople = 2;

}  // namespace

CSplitRows::CSplitRows(const ITexts& texts, CTipCard& card, int row)
    : QObject(&card),
      m_texts(texts),
      m_share(new CFittedLabel(&card)),
      m_people(new QSpinBox(&card)),
      m_fewer(MakeStep("fewer", -1)),
      m_more(MakeStep("more", 1)) {
    m_people->setObjectName("people");
    m_people->setRange(1, kMaxPeople);
    m_people->setValue(kFirstPeople);
    m_people->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_people->setAlignment(Qt::AlignHCenter);
    connect(m_people, &QSpinBox::valueChanged, this, &CSplitRows::ShowShare);
    auto* steps = new QHBoxLayout;
    steps->addStretch(1);
    steps->addWidget(m_fewer);
    steps->addWidget(m_people);
    steps->addWidget(m_more);
    card.AddRow(row, kTextSplitBetween, m_people, steps);
    m_share->setObjectName("share");
    m_share->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    card.AddRow(row + 1, kTextEachPays, m_share);
}

QToolButton* CSplitRows::MakeStep(const QString& name, int by) {
    auto* button = new QToolButton(m_people->parentWidget());
    button->setObjectName(name);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, m_people, [this, by] { m_people->stepBy(by); });
    return button;
}

void CSplitRows::Show(const std::u16string& total) {
    m_total = total;
    ShowShare();
}

void CSplitRows::ShowShare() {
    const std::optional<BillSplit> split = SplitTotal(m_total, m_people->value());
    std::u16string share;
    if (!split) {
        share = m_texts.Text(kTextCannotSplit);
    } else if (split->larger == 0) {
        share = split->smallerShare;
    } else {
        share = FillText(m_texts.Text(kTextTwoShares), {FormatInteger(split->larger), split->largerShare,
                                                        FormatInteger(split->smaller), split->smallerShare});
    }
    m_share->Show(ToQString(share));
}

void CSplitRows::SetSize(const QSize& people, const QSize& step) {
    m_people->setFixedSize(people);
    for (QToolButton* button : {m_fewer, m_more})
        button->setFixedSize(step);
}

void CSplitRows::SetColour(const QColor& text) {
    m_fewer->setIcon(TintedIcon(QStringLiteral("minus"), text));
    m_more->setIcon(TintedIcon(QStringLiteral("plus"), text));
}

}  // namespace rlx
