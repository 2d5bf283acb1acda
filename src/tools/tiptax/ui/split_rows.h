#pragma once

#include <QSpinBox>
#include <QToolButton>
#include <string>

#include "shell/texts.h"
#include "tools/tiptax/ui/fitted_label.h"
#include "tools/tiptax/ui/tip_card.h"

namespace rlx {

/// Among how many people a total is split, and what each pays. The texts must outlive it.
class CSplitRows : public QObject {
    Q_OBJECT

public:
    /// Puts its widgets into two rows of the card from `row` on; the card owns it.
    CSplitRows(const ITexts& texts, CTipCard& card, int row);

    /// Splits a total, in the calculator's way of writing.
    void Show(const std::u16string& total);

    /// Sizes of the number of people and of each of the buttons beside it.
    void SetSize(const QSize& people, const QSize& step);
    void SetColour(const QColor& text);

private:
    QToolButton* MakeStep(const QString& name, int by);
    void ShowShare();

    const ITexts& m_texts;
    std::u16string m_total;
    CFittedLabel* m_share;
    QSpinBox* m_people;
    QToolButton* m_fewer;
    QToolButton* m_more;
};

}  // namespace rlx
