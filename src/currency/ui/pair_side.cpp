#include "currency/ui/pair_side.h"

#include <algorithm>

#include "currency/currency_search.h"
#include "currency/text_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kSmallestFont = 11;  // pixels
constexpr int kLargestFont = 20;
constexpr int kMostTyped = 40;  // characters of an amount

}  // namespace

CPairSide::CPairSide(int number, const ITexts& texts, QWidget* parent)
    : QObject(parent),
      m_texts(texts),
      m_combo(new CSearchCombo(
          {ToQString(texts.Text(kTextCurrencySearchHint)), ToQString(texts.Text(kTextNothingFound))}, parent)),
      m_amount(new QLineEdit(parent)) {
    m_combo->setObjectName(QStringLiteral("currency%1").arg(number));
    m_combo->setAccessibleName(ToQString(texts.Text(kTextChooseCurrency)));
    connect(m_combo, &CSearchCombo::Chosen, this, &CPairSide::CurrencyChosen);
    m_amount->setObjectName(QStringLiteral("amount%1").arg(number));
    m_amount->setMaxLength(kMostTyped);
    m_amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_amount->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    m_amount->setMinimumWidth(0);
    connect(m_amount, &QLineEdit::textEdited, this, &CPairSide::AmountEdited);
}

void CPairSide::SetCurrencies(const CurrencyList& currencies) {
    m_currencies = &currencies;
    QStringList entries;
    for (const CurrencyEntry& entry : currencies)
        entries << ToQString(entry.code + u"  " + entry.name);
    if (entries != m_combo->Entries()) {
        m_combo->SetEntries(entries,
                            [this](const std::u16string& text) { return SearchCurrencies(text, *m_currencies); });
    }
    m_amount->setEnabled(!currencies.empty());
}

void CPairSide::Choose(std::size_t currency) {
    const bool none = m_currencies == nullptr || m_currencies->empty();
    m_combo->SetCurrent(none ? -1 : static_cast<int>(std::min(currency, m_currencies->size() - 1)));
}

std::size_t CPairSide::Chosen() const {
    return static_cast<std::size_t>(std::max(0, m_combo->Current()));
}

const CurrencyEntry* CPairSide::Currency() const {
    const int current = m_combo->Current();
    const bool known = m_currencies != nullptr && current >= 0 && current < static_cast<int>(m_currencies->size());
    return known ? &(*m_currencies)[static_cast<std::size_t>(current)] : nullptr;
}

void CPairSide::ShowCurrency(bool withName) {
    const CurrencyEntry* entry = Currency();
    const std::u16string name = entry == nullptr ? std::u16string() : entry->name;
    m_amount->setAccessibleName(ToQString(FillText(m_texts.Text(kTextAmountIn), {name})));
    if (entry == nullptr) return;
    m_combo->setText(ToQString(withName ? entry->code + u"  " + entry->name : entry->code));
    m_combo->update();
}

void CPairSide::ShowConverted(const ConvertedText& converted) {
    m_amount->setText(ToQString(converted.result));
    m_amount->setCursorPosition(0);
    m_amount->setPlaceholderText(ToQString(converted.hint));
}

void CPairSide::SetRowHeight(int height) {
    QFont font = m_amount->parentWidget()->font();
    font.setPixelSize(std::clamp(height / 2, kSmallestFont, kLargestFont));
    for (QWidget* widget : {static_cast<QWidget*>(m_amount), static_cast<QWidget*>(m_combo)}) {
        widget->setFixedHeight(height);
        widget->setFont(font);
    }
}

}  // namespace rlx
