#include "currency/ui/pair_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "currency/currency_convert.h"
#include "currency/currency_search.h"
#include "currency/text_ids.h"
#include "shell/fill_text.h"
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
constexpr int kSmallestFont = 11;
constexpr int kLargestFont = 20;
constexpr int kMostTyped = 40;  // characters of an amount

CurrencyPair Clamped(const CurrencyPair& pair, std::size_t count) {
    const std::size_t last = count == 0 ? 0 : count - 1;
    return {std::min(pair.from, last), std::min(pair.to, last)};
}

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
        MakeSide(side);
        grid->addWidget(m_combos[side], side, 0);
        grid->addWidget(m_amounts[side], side, 1);
    }
    grid->addWidget(m_swap, 0, 2);
    grid->addWidget(m_copy, 1, 2);
    grid->addWidget(m_rate, 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    m_rate->setObjectName("rate");
    m_rate->setTextFormat(Qt::PlainText);
    m_amounts[0]->setText(QStringLiteral("1"));
    connect(m_swap, &QToolButton::clicked, this, &CPairPanel::Swap);
    connect(m_copy, &QToolButton::clicked, this, &CPairPanel::Copy);
}

void CPairPanel::MakeSide(int side) {
    const CSearchPopup::Words words{ToQString(m_texts.Text(kTextCurrencySearchHint)),
                                    ToQString(m_texts.Text(kTextNothingFound))};
    m_combos[side] = new CSearchCombo(words, this);
    m_combos[side]->setObjectName(QStringLiteral("currency%1").arg(side));
    m_combos[side]->setAccessibleName(ToQString(m_texts.Text(kTextChooseCurrency)));
    connect(m_combos[side], &CSearchCombo::Chosen, this, [this] {
        ShowCodes();
        NameWidgets();
        Convert();
        emit PairChanged();
    });
    m_amounts[side] = new QLineEdit(this);
    m_amounts[side]->setObjectName(QStringLiteral("amount%1").arg(side));
    m_amounts[side]->setMaxLength(kMostTyped);
    m_amounts[side]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_amounts[side]->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    m_amounts[side]->setMinimumWidth(0);
    connect(m_amounts[side], &QLineEdit::textEdited, this, [this, side] {
        m_typed = side;
        Convert();
    });
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
    m_currencies = &currencies;
    QStringList entries;
    for (const CurrencyEntry& entry : currencies)
        entries << ToQString(entry.code + u"  " + entry.name);
    const CurrencyPair chosen = Clamped(pair, currencies.size());
    for (int side = 0; side < kSides; ++side) {
        if (entries != m_combos[side]->Entries()) {
            m_combos[side]->SetEntries(
                entries, [this](const std::u16string& text) { return SearchCurrencies(text, *m_currencies); });
        }
        m_combos[side]->SetCurrent(currencies.empty() ? -1 : static_cast<int>(side == 0 ? chosen.from : chosen.to));
        m_amounts[side]->setEnabled(!currencies.empty());
    }
    ShowCodes();
    NameWidgets();
    Convert();
}

CurrencyPair CPairPanel::Pair() const {
    return {static_cast<std::size_t>(std::max(0, m_combos[0]->Current())),
            static_cast<std::size_t>(std::max(0, m_combos[1]->Current()))};
}

const CurrencyEntry* CPairPanel::Currency(int side) const {
    const int current = m_combos[side]->Current();
    const bool known = m_currencies != nullptr && current >= 0 && current < static_cast<int>(m_currencies->size());
    return known ? &(*m_currencies)[static_cast<std::size_t>(current)] : nullptr;
}

/// The result is empty where there is none, and a hint in the field says why.
void CPairPanel::Convert() {
    const CurrencyEntry* from = Currency(m_typed);
    const CurrencyEntry* to = Currency(1 - m_typed);
    QLineEdit* result = m_amounts[1 - m_typed];
    result->clear();
    result->setPlaceholderText({});
    if (from != nullptr && to != nullptr) {
        const QString typed = m_amounts[m_typed]->text().trimmed();
        const auto amount = ParseAmount(FromQString(typed));
        const bool ratesKnown = RateValue(from->rate) && RateValue(to->rate);
        const auto converted = amount ? rlx::Convert(*amount, from->rate, to->rate) : std::nullopt;
        if (converted) {
            result->setText(ToQString(FormatAmount(*converted)));
            result->setCursorPosition(0);
        } else if (!ratesKnown) {
            result->setPlaceholderText(ToQString(m_texts.Text(kTextRateUnknown)));
        } else if (!typed.isEmpty()) {
            result->setPlaceholderText(ToQString(m_texts.Text(kTextNotAnAmount)));
        }
    }
    m_copy->setEnabled(!result->text().isEmpty());
    ShowRate();
}

/// "1 USD = 0.88 EUR".
void CPairPanel::ShowRate() {
    const CurrencyEntry* from = Currency(0);
    const CurrencyEntry* to = Currency(1);
    if (from == nullptr || to == nullptr) return m_rate->clear();
    const auto rate = rlx::Convert(1, from->rate, to->rate);
    const std::u16string value =
        rate ? FormatAmount(*rate) + u" " + to->code
             : (RateValue(from->rate) ? to->code : from->code) + u": " + m_texts.Text(kTextRateUnknown);
    m_rate->setText(ToQString(rate ? u"1 " + from->code + u" = " + value : value));
}

/// A narrow panel has room for the codes alone.
void CPairPanel::ShowCodes() {
    for (int side = 0; side < kSides; ++side) {
        const CurrencyEntry* entry = Currency(side);
        if (entry == nullptr) continue;
        m_combos[side]->setText(ToQString(width() < kWidthForNames ? entry->code : entry->code + u"  " + entry->name));
        m_combos[side]->update();
    }
}

void CPairPanel::NameWidgets() {
    for (int side = 0; side < kSides; ++side) {
        const CurrencyEntry* entry = Currency(side);
        const std::u16string name = entry == nullptr ? std::u16string() : entry->name;
        m_amounts[side]->setAccessibleName(ToQString(FillText(m_texts.Text(kTextAmountIn), {name})));
    }
}

/// The currencies change places, the amount typed stays where it is.
void CPairPanel::Swap() {
    const int first = m_combos[0]->Current();
    m_combos[0]->SetCurrent(m_combos[1]->Current());
    m_combos[1]->SetCurrent(first);
    ShowCodes();
    NameWidgets();
    Convert();
    emit PairChanged();
}

void CPairPanel::Copy() {
    const QString result = m_amounts[1 - m_typed]->text();
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
    QFont amountFont = font();
    amountFont.setPixelSize(std::clamp(rowHeight / 2, kSmallestFont, kLargestFont));
    for (int side = 0; side < kSides; ++side) {
        m_amounts[side]->setFixedHeight(rowHeight);
        m_amounts[side]->setFont(amountFont);
        m_combos[side]->setFixedHeight(rowHeight);
        m_combos[side]->setFont(amountFont);
    }
    for (QToolButton* button : {m_swap, m_copy}) {
        button->setFixedSize(std::max(rowHeight, 28), rowHeight);
        button->setIconSize(QSize(rowHeight, rowHeight) * 6 / 10);
    }
    QFont rateFont = font();
    rateFont.setPixelSize(kSmallestFont + 1);
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
    for (QLineEdit* amount : m_amounts)
        amount->setPalette(palette);
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
    for (CSearchCombo* combo : m_combos)
        combo->setFixedWidth(column);
    ShowCodes();
}

}  // namespace rlx
