#pragma once

#include <QFrame>
#include <QLabel>
#include <QToolButton>
#include <array>

#include "currency/converter_pairs.h"
#include "currency/ui/pair_side.h"
#include "shell/texts.h"
#include "uikit/look.h"

namespace rlx {

/// One converter: two currencies and two amounts. What is typed into either amount converts into the other at once.
/// User-interface thread; references must outlive it.
class CPairPanel : public QFrame {
    Q_OBJECT

public:
    /// The widgets are called "currency0", "currency1", "amount0", "amount1", "swap", "copy" and "rate".
    CPairPanel(const ITexts& texts, const CLook& look, QWidget* parent);

    /// Replaces the currencies, which must outlive the panel's use of them, and chooses a pair. The amounts stay.
    void SetCurrencies(const CurrencyList& currencies, const CurrencyPair& pair);
    CurrencyPair Pair() const;

    /// How a panel lies, in pixels.
    struct Form {
        int rowHeight = 0;
        int padding = 0;        ///< between the frame and what is in it
        bool withRate = false;  ///< a line that tells the rate

        int Height() const;
    };
    void Arrange(const Form& form);

    /// Takes the colours of the look.
    void TakeColours();

signals:
    /// The user chose another currency or swapped the two.
    void PairChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    static constexpr int kSides = 2;

    QToolButton* MakeButton(const char* name, int text);
    void Convert();
    void ShowRate();
    void ShowCurrencies();
    void TakePair();
    void Swap();
    void Copy();

    const ITexts& m_texts;
    const CLook& m_look;
    std::array<CPairSide*, kSides> m_sides{};
    QLabel* m_rate;
    QToolButton* m_swap;
    QToolButton* m_copy;
    int m_typed = 0;  ///< the side whose amount counts; the other is the result
};

}  // namespace rlx
