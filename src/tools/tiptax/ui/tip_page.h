#pragma once

#include <QScrollArea>
#include <QSpinBox>
#include <QToolButton>

#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "tools/tiptax/text_ids.h"
#include "tools/tiptax/tip_calculator.h"
#include "tools/tiptax/ui/fitted_label.h"
#include "tools/tiptax/ui/number_field.h"
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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddRow(int row, int textId, QWidget* field, QLayout* fields = nullptr);
    void MakeCard();
    void MakeRate(TipRate rate, const QString& name, int labelText, int row);
    void MakeSplit(int row);
    QToolButton* MakeStep(const QString& name, int by);
    void ApplyLook();

    void Show();
    QString ShareText() const;

    const ITexts& m_texts;
    const CLook& m_look;
    CTipCalculator m_tip;
    QScrollArea* m_scroll;
    QWidget* m_card;
    QGridLayout* m_grid;
    CNumberField* m_bill;
    CTipRateRow* m_rates[2] = {nullptr, nullptr};
    CFittedLabel* m_total;
    QSpinBox* m_people = nullptr;
    QToolButton* m_fewer = nullptr;
    QToolButton* m_more = nullptr;
    CFittedLabel* m_share;
};

}  // namespace rlx
