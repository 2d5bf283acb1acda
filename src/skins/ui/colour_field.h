#pragma once

#include <QImage>
#include <QWidget>

namespace rlx {

/// A colour to point at: a plane of saturation (rightwards) and brightness (upwards) with a strip of hues below. Arrow
/// keys move in the plane, Page Up and Page Down along the strip. User-interface thread.
class CColourField : public QWidget {
    Q_OBJECT

public:
    explicit CColourField(const QColor& colour, QWidget* parent = nullptr);

    QColor Colour() const;

    /// Says nothing when the colour is the one shown.
    void SetColour(const QColor& colour);

signals:
    void Picked(const QColor& colour);

protected:
    QSize sizeHint() const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRect Plane() const;
    QRect Strip() const;
    void Point(const QPoint& at);
    void Put(int hue, int saturation, int brightness);

    int m_hue = 0;  ///< degrees; kept where grey has none
    int m_saturation = 0;
    int m_brightness = 0;
    bool m_onStrip = false;  ///< where the button went down
    QImage m_plane;          ///< of `m_planeHue`
    int m_planeHue = -1;
};

}  // namespace rlx
