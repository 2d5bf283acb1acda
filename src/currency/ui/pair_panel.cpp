#include "currency/ui/pair_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "currency/text_ids.h"
#include "shell/text_ids.h"
#include "uikit/icons.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr double kRadius = 8;
constexpr int kGap = 3;
constexpr int kRateHeight = 18;
constexpr int kWidthForNames = 400;
constexpr int kRateFont = 12;

}  // namespace

CPairPanel::CPairPanel(const ITexts& texts, const CLook& look, QWidget* parent)
    : QFrame(parent),
      m_texts(texts),
      m_look(look),
      m_rate(new QLabel(this)),
      m_swap(MakeButton("swap", kTextSwapCurrencies)),
      m_copy(MakeButton("copy", kTextCopyResult)) {
    auto* grid = new QGridLayout(this);
    grid->setSpacing(kGap);
    for (int side = 0; side < kSides; ++side) {
        m_sides[side] = new CPairSide(side, texts, this);
        grid->addWidget(m_sides[side]->Combo(), side, 0);
        grid->addWidget(m_sides[side]->Amount(), side, 1);
        connect(m_sides[side], &CPairSide::CurrencyChosen, this, &CPairPanel::TakePair);
        connect(m_sides[side], &CPairSide::AmountEdited, this, [this, side] {
            m_typed = side;
            Convert();
        });
    }
    grid->addWidget(m_swap, 0, 2);
    grid->addWidget(m_copy, 1, 2);
    grid->addWidget(m_rate, 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    m_rate->setObjectName("rate");
    m_rate->setTextFormat(Qt::PlainText);
    m_sides[0]->Amount()->setText(QStringLiteral("1"));
    connect(m_swap, &QToolButton::clicked, this, &CPairPanel::Swap);
    connect(m_copy, &QToolButton::clicked, this, &CPairPanel::Copy);
}

QToolButton* CPairPanel::MakeButton(const char* name, int text) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setToolTip(ToQString(m_texts.Text(text)));
    button->setAccessibleName(button->toolTip());
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void CPairPanel::SetCurrencies(const CurrencyList& currencies, const CurrencyPair& pair) {
    for (CPairSide* side : m_sides)
        side->SetCurrencies(currencies);
    m_sides[0]->Choose(pair.from);
    m_sides[1]->Choose(pair.to);
    ShowCurrencies();
    Convert();
}

CurrencyPair CPairPanel::Pair() const {
    return {m_sides[0]->Chosen(), m_sides[1]->Chosen()};
}

/// The result is empty where there is none, and a hint in the field says why.
void CPairPanel::Convert() {
    const CurrencyEntry* from = m_sides[m_typed]->Currency();
    const CurrencyEntry* to = m_sides[1 - m_typed]->Currency();
    ConvertedText converted;
    if (from != nullptr && to != nullptr)
        converted = ConvertTyped(FromQString(m_sides[m_typed]->Amount()->text().trimmed()), *from, *to, m_texts);
    m_sides[1 - m_typed]->ShowConverted(converted);
    m_copy->setEnabled(!converted.result.empty());
    ShowRate();
}

void CPairPanel::ShowRate() {
    const CurrencyEntry* from = m_sides[0]->Currency();
    const CurrencyEntry* to = m_sides[1]->Currency();
    if (from == nullptr || to == nullptr) return m_rate->clear();
    m_rate->setText(ToQString(RateText(*from, *to, m_texts)));
}

/// A narrow panel has room for the codes alone.
void CPairPanel::ShowCurrencies() {
    for (CPairSide* side : m_sides)
        side->ShowCurrency(width() >= kWidthForNames);
}

void CPairPanel::TakePair() {
    ShowCurrencies();
    Convert();
    emit PairChanged();
}

/// The currencies change places, the amount typed stays where it is.
void CPairPanel::Swap() {
    const CurrencyPair pair = Pair();
    m_sides[0]->Choose(pair.to);
    m_sides[1]->Choose(pair.from);
    TakePair();
}

void CPairPanel::Copy() {
    const QString result = m_sides[1 - m_typed]->Amount()->text();
    if (result.isEmpty()) return;
    QApplication::clipboard()->setText(result);
    QToolTip::showText(m_copy->mapToGlobal(QPoint(0, -m_copy->height())), ToQString(m_texts.Text(kTextCopied)), m_copy);
}

int CPairPanel::Form::Height() const {
    return 2 * rowHeight + kGap + 2 * padding + (withRate ? kRateHeight + kGap : 0);
}

void CPairPanel::Arrange(const Form& form) {
    const int rowHeight = form.rowHeight;
    layout()->setContentsMargins(form.padding, form.padding, form.padding, form.padding);
    for (CPairSide* side : m_sides)
        side->SetRowHeight(rowHeight);
    for (QToolButton* button : {m_swap, m_copy}) {
        button->setFixedSize(std::max(rowHeight, 28), rowHeight);
        button->setIconSize(QSize(rowHeight, rowHeight) * 6 / 10);
    }
    QFont rateFont = font();
    rateFont.setPixelSize(kRateFont);
    m_rate->setFont(rateFont);
    m_rate->setFixedHeight(kRateHeight);
    m_rate->setVisible(form.withRate);
    setFixedHeight(form.Height());
}

void CPairPanel::TakeColours() {
    const QColor text = m_look.Colour(SkinKey::kCurrencySTC);
    const QColor panel = m_look.Colour(SkinKey::kCurrencyPanC);
    QPalette palette = PagePalette(m_look, {panel, text, m_look.Colour(SkinKey::kCurrencyPBC), text});
    setPalette(palette);
    palette.setColor(QPalette::Base, m_look.Colour(SkinKey::kCurrencyPCEC));
    palette.setColor(QPalette::Text, m_look.Colour(SkinKey::kCurrencySumC));
    for (CPairSide* side : m_sides)
        side->Amount()->setPalette(palette);
    m_swap->setIcon(TintedIcon("swap", text));
    m_copy->setIcon(TintedIcon("copy", text));
}

void CPairPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.Colour(SkinKey::kCurrencyPanC));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
}

void CPairPanel::resizeEvent(QResizeEvent* /*event*/) {
    const int column = width() < kWidthForNames ? std::clamp(width() / 3, 60, 110) : width() / 2;
    for (CPairSide* side : m_sides)
        side->Combo()->setFixedWidth(column);
    ShowCurrencies();
}

}  // namespace rlx
