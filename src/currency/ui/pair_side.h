#pragma once

#include <QLineEdit>
#include <QObject>

#include "currency/pair_texts.h"
#include "shell/texts.h"
#include "uikit/search_combo.h"

namespace rlx {

/// One currency of a pair and its amount. References must outlive it.
class CPairSide : public QObject {
    Q_OBJECT

public:
    /// The widgets, "currency" and "amount" with the number of the side, are children of `parent`, and so is this.
    CPairSide(int number, const ITexts& texts, QWidget* parent);

    CSearchCombo* Combo() { return m_combo; }
    QLineEdit* Amount() { return m_amount; }

    /// Replaces the currencies, which must outlive the use of them. The amount stays.
    void SetCurrencies(const CurrencyList& currencies);

    /// By its place in the list; none of an empty one.
    void Choose(std::size_t currency);
    std::size_t Chosen() const;

    /// Null when there is none.
    const CurrencyEntry* Currency() const;

    /// Writes the code of the currency, and its name too where there is room.
    void ShowCurrency(bool withName);

    void ShowConverted(const ConvertedText& converted);

    /// For rows of a height, in pixels.
    void SetRowHeight(int height);

signals:
    void CurrencyChosen();
    void AmountEdited();

private:
    const ITexts& m_texts;
    const CurrencyList* m_currencies = nullptr;
    CSearchCombo* m_combo;
    QLineEdit* m_amount;
};

}  // namespace rlx
