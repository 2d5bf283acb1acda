#pragma once

#include <QWidget>

#include "uikit/look.h"

namespace rlx {

/// The strip below the news page: where the page comes from, and the two squares that change the size of its text. The
/// right and bottom edges of the strip are those of the view. User-interface thread; the look must outlive it.
class CZoomBar : public QWidget {
    Q_OBJECT

public:
    static constexpr int kHeight = 26;

    CZoomBar(const CLook& look, QWidget* parent);

    /// Words about the page, and a mark that warns of its age (empty: none). The accessible description says both.
    void ShowOrigin(const QString& words, const QString& mark);

    /// Which of the squares can be used.
    void Enable(bool minus, bool plus);

    /// The middles of the squares, in the strip.
    QPoint Minus() const;
    QPoint Plus() const;

signals:
    /// A tap on the strip, wherever.
    void Tapped(const QPoint& point);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QRect Square(int away) const;
    void PaintOrigin(QPainter& painter, int width) const;

    const CLook& m_look;
    QString m_words;
    QString m_mark;
    bool m_minus = true;
    bool m_plus = true;
};

}  // namespace rlx
