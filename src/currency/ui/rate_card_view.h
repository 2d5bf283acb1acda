#pragma once

#include <QWidget>
#include <vector>

#include "currency/rate_card.h"
#include "uikit/look.h"

namespace rlx {

/// A rate card on a panel: a title, the day of the rates, and as many lines as there is room for. Its accessible
/// description holds the same words. User-interface thread; the look must outlive it.
class CRateCardView : public QWidget {
    Q_OBJECT

public:
    CRateCardView(const CLook& look, QWidget* parent);

    void Show(const QString& title, const QString& day, std::vector<RateCardRow> rows);

    /// How many lines are shown.
    std::size_t Lines() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Describe();
    int LineHeight() const;
    void PaintLine(QPainter& painter, const QRect& line, const RateCardRow& row) const;

    const CLook& m_look;
    QString m_title;
    QString m_day;
    std::vector<RateCardRow> m_rows;
};

}  // namespace rlx
