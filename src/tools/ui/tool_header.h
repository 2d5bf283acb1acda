#pragma once

#include <QLabel>
#include <QToolButton>
#include <QWidget>

#include "uikit/look.h"

namespace rlx {

/// The strip above a page: the way back to the list of tools, and the page's name.
class CToolHeader : public QWidget {
    Q_OBJECT

public:
    CToolHeader(const QString& backText, const CLook& look, QWidget* parent);

    void SetTitle(const QString& title);

signals:
    void BackChosen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ApplyLook();
    void Fit();

    const CLook& m_look;
    QString m_title;
    QToolButton* m_back;
    QLabel* m_label;
};

}  // namespace rlx
