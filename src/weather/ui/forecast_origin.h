#pragma once

#include <QWidget>

#include "uikit/look.h"

namespace rlx {

/// Where a forecast comes from and when it was made, with marks that warn of it, in one line or two. Its accessible
/// description holds the same words. The look must outlive it.
class CForecastOrigin : public QWidget {
    Q_OBJECT

public:
    CForecastOrigin(const CLook& look, QWidget* parent);

    void Show(const QStringList& marks, const QString& issued, const QString& source);
    void SetTwoLines(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const CLook& m_look;
    QStringList m_marks;
    QString m_issued;
    QString m_source;
    bool m_twoLines = false;
};

}  // namespace rlx
