#pragma once

#include <QLabel>

namespace rlx {

/// One line that is drawn smaller where it would not fit, and shortened only below a readable size; the tool tip has
/// all of it.
class CFittedLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void Show(const QString& text);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace rlx
