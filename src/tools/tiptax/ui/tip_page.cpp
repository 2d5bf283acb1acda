#include "tools/tiptax/ui/tip_page.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "tools/tiptax/text_ids.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kMargin = 4;
constexpr int kLowScreen = 200;
constexpr int kSmallestFont = 11;  // pixels
constexpr int kLargestFont = 20;
constexpr int kCharactersAcross = 21;  // of the font, wide; they decide its size
constexpr int kLinesDown = 16;
constexpr int kWidthInCharacters = 24;  // of the card at most
constexpr int kNarrow = 260;
constexpr double kTotalScale = 1.4;

}  // namespace

CTipPage::CTipPage(const ITexts& texts, IMessageBoxes& boxes, const CLook& look)
    : m_texts(texts),
      m_look(look),
      m_tip(texts, boxes),
      m_scroll(new QScrollArea(this)),
      m_card(new CTipCard(texts, look)),
      m_bill(new CNumberField(m_card)),
      m_total(new CFittedLabel(m_card)) {
    setObjectName("tipPage");
    MakeCard();
    m_bill->setObjectName("bill");
    m_bill->setText(ToQString(m_tip.BillText()));
    m_card->AddRow(0, kTextBillAmount, m_bill);
    connect(m_bill, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_tip.EditBill(FromQString(text));
        Show();
    });
    MakeRate(TipRate::kFirst, "first", kTextService, 1);
    MakeRate(TipRate::kSecond, "second", kTextTax, 3);
    m_total->setObjectName("total");
    m_total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_card->AddRow(5, kTextTotal, m_total);
    m_split = new CSplitRows(texts, *m_card, 6);  // made last, as the keys reach it last
    connect(&m_look, &CLook::Changed, this, &CTipPage::ApplyLook);
    ApplyLook();
    Show();
}

/// The card scrolls where the screen is too low for it.
void CTipPage::MakeCard() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_scroll);
    auto* content = new QWidget;
    auto* centred = new QHBoxLayout(content);
    centred->setContentsMargins(0, 0, 0, 0);
    centred->addStretch(1);
    centred->addWidget(m_card, 1000, Qt::AlignVCenter);
    centred->addStretch(1);
    m_scroll->setWidget(content);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    for (QWidget* see : {static_cast<QWidget*>(m_scroll->viewport()), content})
        see->setAutoFillBackground(false);
}

void CTipPage::MakeRate(TipRate rate, const QString& name, int labelText, int row) {
    auto* shown = new CTipRateRow(name, ToQString(m_texts.Text(labelText)), m_texts, m_card->Grid(), row, m_card);
    m_rates[static_cast<std::size_t>(rate)] = shown;
    connect(shown, &CTipRateRow::RateEdited, this, [this, rate](const QString& text) {
        m_tip.EditRate(rate, FromQString(text));
        Show();
    });
    connect(shown, &CTipRateRow::AddedChanged, this, [this, rate](bool added) {
        m_tip.SetAdded(rate, added);
        Show();
    });
}

void CTipPage::ApplyLook() {
    const QColor text = m_look.PanelText();
    setPalette(PagePalette(m_look, {m_look.Panel(), text, m_look.Bar(), text}));
    m_split->SetColour(text);
    update();
}

void CTipPage::Entered() {
    m_bill->setFocus(Qt::OtherFocusReason);
    m_bill->selectAll();
}

/// Text and touch targets grow with the screen, within reason.
void CTipPage::resizeEvent(QResizeEvent* /*event*/) {
    const int size =
        std::clamp(std::min(width() / kCharactersAcross, height() / kLinesDown), kSmallestFont, kLargestFont);
    QFont scaled = font();
    scaled.setPixelSize(size);
    m_card->setFont(scaled);
    m_card->setMaximumWidth(size * kWidthInCharacters);
    m_card->Grid().setVerticalSpacing(size / 3);
    m_card->Grid().setHorizontalSpacing(size / 3);
    QFont large = scaled;
    large.setPixelSize(static_cast<int>(size * kTotalScale));
    large.setBold(true);
    m_total->setFont(large);
    const int touch = std::max(size * 2, height() < kLowScreen ? 24 : 28);
    const int digits = QFontMetrics(scaled).horizontalAdvance(QStringLiteral("100.00")) + size;
    for (auto* field : m_card->findChildren<CNumberField*>()) {
        field->setMinimumHeight(touch);
        if (field != m_bill) field->setFixedWidth(digits);
    }
    m_split->SetSize({digits, touch}, {touch + size / 2, touch});
    for (CTipRateRow* rate : m_rates)
        rate->SetNarrow(width() < kNarrow);
}

void CTipPage::Show() {
    for (const TipRate rate : {TipRate::kFirst, TipRate::kSecond})
        m_rates[static_cast<std::size_t>(rate)]->Show(m_tip, rate);
    m_total->Show(ToQString(m_tip.TotalText()));
    m_split->Show(m_tip.TotalText());
}

}  // namespace rlx
