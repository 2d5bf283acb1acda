#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QString>

#include "shell/texts.h"
#include "tools/tiptax/tip_calculator.h"
#include "tools/tiptax/ui/fitted_label.h"
#include "tools/tiptax/ui/number_field.h"

namespace rlx {

/// One of the two rates: its field, whether its amount is added, and the amount. An amount that is not added counts as
/// included in the bill, which the row then says.
class CTipRateRow : public QObject {
    Q_OBJECT

public:
    /// Puts its widgets into two rows of `grid` from `row` on, in `kColumns` columns. Their names begin with `name`.
    CTipRateRow(const QString& name, const QString& label, const ITexts& texts, QGridLayout& grid, int row,
                QWidget* parent);

    static constexpr int kColumns = 5;

    /// Shows what the calculator holds. Signals nothing.
    void Show(const CTipCalculator& tip, TipRate rate);

signals:
    void RateEdited(const QString& text);
    void AddedChanged(bool added);

private:
    CNumberField* m_rate;
    QCheckBox* m_added;
    CFittedLabel* m_amount;
    QLabel* m_included;
};

}  // namespace rlx
