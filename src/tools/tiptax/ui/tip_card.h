#pragma once

#include <QGridLayout>
#include <QWidget>

#include "shell/texts.h"
#include "uikit/look.h"

namespace rlx {

/// The card that the rows of the tip page lie on. References must outlive it.
class CTipCard : public QWidget {
    Q_OBJECT

public:
    /// Called "tipCard". Has no parent yet.
    CTipCard(const ITexts& texts, const CLook& look);

    QGridLayout& Grid() { return *m_grid; }

    /// A label and behind it a field, or several in a layout, of which `field` is the one that the label speaks of.
    void AddRow(int row, int textId, QWidget* field, QLayout* fields = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const ITexts& m_texts;
    const CLook& m_look;
    QGridLayout* m_grid;
};

}  // namespace rlx
