#include "tools/tiptax/ui/tip_page.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "base/number.h"
#include "shell/fill_text.h"
#include "tools/tiptax/bill_split.h"
#include "tools/tiptax/text_ids.h"
#include "uikit/icons.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kMargin = 4;
constexpr int kLowScreen = 200;
constexpr int kCardRadius = 12;
constexpr int kSmallestFont = 11;  // pixels
constexpr int kLargestFont = 20;
constexpr int kCharactersAcross = 21;  // of the font, wide; they decide its size
constexpr int kLinesDown = 16;
constexpr int kWidthInCharacters = 24;  // of the card at most
constexpr int kNarrow = 260;
constexpr double kTotalScale = 1.4;
constexpr int kLeastLabel = 40;  // pixels; the rest of a long label is drawn smaller
constexpr int kFirstPeople = 2;

}  // namespace

CTipPage::CTipPage(const ITexts& texts, IMessageBoxes& boxes, const CLook& look)
    : m_texts(texts),
      m_look(look),
      m_tip(texts, boxes),
      m_scroll(new QScrollArea(this)),
      m_card(new QWidget),
      m_grid(new QGridLayout(m_card)),
      m_bill(new CNumberField(m_card)),
      m_total(new CFittedLabel(m_card)),
      m_share(new CFittedLabel(m_card)) {
    setObjectName("tipPage");
    MakeCard();
    m_bill->setObjectName("bill");
    m_bill->setText(ToQString(m_tip.BillText()));
    AddRow(0, kTextBillAmount, m_bill);
    connect(m_bill, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_tip.EditBill(FromQString(text));
        Show();
    });
    MakeRate(TipRate::kFirst, "first", kTextService, 1);
    MakeRate(TipRate::kSecond, "second", kTextTax, 3);
    m_total->setObjectName("total");
    m_total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    AddRow(5, kTextTotal, m_total);
    MakeSplit(6);
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
    m_card->setObjectName("tipCard");
    m_card->installEventFilter(this);
    m_grid->setColumnStretch(4, 1);
    m_grid->setContentsMargins(8, 4, 8, 4);
}

/// A label and behind it a field, or several in a layout. It lies across the columns of the rates, which need theirs.
void CTipPage::AddRow(int row, int textId, QWidget* field, QLayout* fields) {
    auto* line = new QHBoxLayout;
    auto* label = new QLabel(ToQString(m_texts.Text(textId)), m_card);
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

void CTipPage::MakeRate(TipRate rate, const QString& name, int labelText, int row) {
    auto* shown = new CTipRateRow(name, ToQString(m_texts.Text(labelText)), m_texts, *m_grid, row, m_card);
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

void CTipPage::MakeSplit(int row) {
    m_people = new QSpinBox(m_card);  // made last, as the keys reach it last
    m_people->setObjectName("people");
    m_people->setRange(1, kMaxPeople);
    m_people->setValue(kFirstPeople);
    m_people->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_people->setAlignment(Qt::AlignHCenter);
    connect(m_people, &QSpinBox::valueChanged, this, &CTipPage::Show);
    m_fewer = MakeStep("fewer", -1);
    m_more = MakeStep("more", 1);
    auto* steps = new QHBoxLayout;
    steps->addStretch(1);
    steps->addWidget(m_fewer);
    steps->addWidget(m_people);
    steps->addWidget(m_more);
    AddRow(row, kTextSplitBetween, m_people, steps);
    m_share->setObjectName("share");
    m_share->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    AddRow(row + 1, kTextEachPays, m_share);
}

QToolButton* CTipPage::MakeStep(const QString& name, int by) {
    auto* button = new QToolButton(m_card);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, m_people, [this, by] { m_people->stepBy(by); });
    return button;
}

void CTipPage::ApplyLook() {
    const QColor text = m_look.PanelText();
    setPalette(PagePalette(m_look, {m_look.Panel(), text, m_look.Bar(), text}));
    m_fewer->setIcon(TintedIcon(QStringLiteral("minus"), text));
    m_more->setIcon(TintedIcon(QStringLiteral("plus"), text));
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
    m_grid->setVerticalSpacing(size / 3);
    m_grid->setHorizontalSpacing(size / 3);
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
    m_people->setFixedSize(digits, touch);
    for (CTipRateRow* rate : m_rates)
        rate->SetNarrow(width() < kNarrow);
    for (QToolButton* step : {m_fewer, m_more})
        step->setFixedSize(touch + size / 2, touch);
}

/// Draws the ground of the card, which lets the picture through.
bool CTipPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_card && event->type() == QEvent::Paint) {
        QPainter painter(m_card);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_look.Card());
        painter.drawRoundedRect(m_card->rect(), kCardRadius, kCardRadius);
    }
    return CToolPage::eventFilter(watched, event);
}

void CTipPage::Show() {
    for (const TipRate rate : {TipRate::kFirst, TipRate::kSecond})
        m_rates[static_cast<std::size_t>(rate)]->Show(m_tip, rate);
    m_total->Show(ToQString(m_tip.TotalText()));
    m_share->Show(ShareText());
}

QString CTipPage::ShareText() const {
    const std::optional<BillSplit> split = SplitTotal(m_tip.TotalText(), m_people->value());
    if (!split) return ToQString(m_texts.Text(kTextCannotSplit));
    if (split->larger == 0) return ToQString(split->smallerShare);
    return ToQString(FillText(m_texts.Text(kTextTwoShares), {FormatInteger(split->larger), split->largerShare,
                                                             FormatInteger(split->smaller), split->smallerShare}));
}

}  // namespace rlx
