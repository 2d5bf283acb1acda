#pragma once

#include <QScrollArea>

#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "tools/tiptax/text_ids.h"
#include "tools/tiptax/tip_calculator.h"
#include "tools/tiptax/ui/fitted_label.h"
#include "tools/tiptax/ui/number_field.h"
#include "tools/tiptax/ui/split_rows.h"
#include "tools/tiptax/ui/tip_card.h"
#include "tools/tiptax/ui/tip_rate_row.h"
#include "uikit/look.h"
#include "uikit/tool_page.h"

namespace rlx {

/// A bill, what two percentages of it come to, the total, and what each of several people pays. Everything is computed
/// as one types.
class CTipPage : public CToolPage {
    Q_OBJECT

public:
    /// All references must outlive the page.
    CTipPage(const ITexts& texts, IMessageBoxes& boxes, const CLook& look);

    int TitleText() const override { return kTextToolTipTax; }
    QString IconName() const override { return QStringLiteral("tiptax"); }
    void Entered() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeCard();
    void MakeRate(TipRate rate, const QString& name, int labelText, int row);
    void ApplyLook();

    void Show();

    const ITexts& m_texts;
    const CLook& m_look;
    CTipCalculator m_tip;
    QScrollArea* m_scroll;
    CTipCard* m_card;
    CNumberField* m_bill;
    CTipRateRow* m_rates[2] = {nullptr, nullptr};
    CFittedLabel* m_total;
    CSplitRows* m_split = nullptr;
};

}  // namespace rlx
