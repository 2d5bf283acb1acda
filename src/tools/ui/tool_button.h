#pragma once

#include <QAbstractButton>

#include "uikit/look.h"

namespace rlx {

/// A card with the icon of a page and its name below, in as many lines as it takes.
class CToolButton : public QAbstractButton {
    Q_OBJECT

public:
    CToolButton(const QString& iconName, const QString& title, const CLook& look, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString m_iconName;
    QString m_title;
    const CLook& m_look;
};

}  // namespace rlx
