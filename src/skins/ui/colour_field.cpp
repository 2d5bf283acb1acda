#include "skins/ui/colour_field.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace rlx {

namespace {

constexpr int kMost = 255;
constexpr int kMostHue = 359;
constexpr int kStripHeight = 28;
constexpr int kGap = 6;
constexpr int kStep = 5;

int Scaled(int at, int length, int most) {
    return length < 2 ? 0 : std::clamp(at * most / (length - 1), 0, most);
}

QImage PlaneOf(int hue) {
    QImage plane(kMost + 1, kMost + 1, QImage::Format_RGB32);
    for (int y = 0; y <= kMost; ++y) {
        auto* row = reinterpret_cast<QRgb*>(plane.scanLine(y));
        for (int x = 0; x <= kMost; ++x)
            row[x] = QColor::fromHsv(hue, x, kMost - y).rgb();
    }
    return plane;
}

/// A mark that is seen on every colour.
void PaintMark(QPainter& painter, const QPointF& at) {
    for (const auto& [colour, radius] : {std::pair(Qt::black, 7.0), std::pair(Qt::white, 5.5)}) {
        painter.setPen(QPen(colour, 1.5));
        painter.drawEllipse(at, radius, radius);
    }
}

}  // namespace

CColourField::CColourField(const QColor& colour, QWidget* parent) : QWidget(parent) {
    setObjectName("colourField");
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(120, 90);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    SetColour(colour);
}

QColor CColourField::Colour() const {
    return QColor::fromHsv(m_hue, m_saturation, m_brightness);
}

void CColourField::SetColour(const QColor& colour) {
    if (colour.rgb() == Colour().rgb()) return;
    if (colour.hsvHue() >= 0) m_hue = std::min(colour.hsvHue(), kMostHue);
    m_saturation = colour.hsvSaturation();
    m_brightness = colour.value();
    update();
}

QSize CColourField::sizeHint() const {
    return {280, 220};
}

QRect CColourField::Plane() const {
    return rect().adjusted(0, 0, 0, -kStripHeight - kGap);
}

QRect CColourField::Strip() const {
    return {0, height() - kStripHeight, width(), kStripHeight};
}

void CColourField::paintEvent(QPaintEvent* /*event*/) {
    if (m_planeHue != m_hue) {
        m_plane = PlaneOf(m_hue);
        m_planeHue = m_hue;
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawImage(Plane(), m_plane);
    QLinearGradient hues(Strip().topLeft(), Strip().topRight());
    for (int sixth = 0; sixth <= 6; ++sixth)
        hues.setColorAt(sixth / 6.0, QColor::fromHsv(sixth % 6 * 60, kMost, kMost));
    painter.fillRect(Strip(), hues);
    const QRect plane = Plane();
    painter.setBrush(Qt::NoBrush);
    PaintMark(painter, {plane.left() + plane.width() * m_saturation / double(kMost),
                        plane.top() + plane.height() * (kMost - m_brightness) / double(kMost)});
    PaintMark(painter, {Strip().width() * m_hue / double(kMostHue), Strip().center().y() + 0.5});
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(plane.adjusted(0, 0, -1, -1));
    }
}

void CColourField::mousePressEvent(QMouseEvent* event) {
    m_onStrip = event->position().y() >= Strip().top() - kGap / 2.0;
    Point(event->position().toPoint());
}

void CColourField::mouseMoveEvent(QMouseEvent* event) {
    Point(event->position().toPoint());
}

void CColourField::Point(const QPoint& at) {
    if (m_onStrip) return Put(Scaled(at.x(), width(), kMostHue), m_saturation, m_brightness);
    Put(m_hue, Scaled(at.x(), width(), kMost), kMost - Scaled(at.y(), Plane().height(), kMost));
}

void CColourField::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return Put(m_hue, m_saturation - kStep, m_brightness);
        case Qt::Key_Right:
            return Put(m_hue, m_saturation + kStep, m_brightness);
        case Qt::Key_Up:
            return Put(m_hue, m_saturation, m_brightness + kStep);
        case Qt::Key_Down:
            return Put(m_hue, m_saturation, m_brightness - kStep);
        case Qt::Key_PageUp:
            return Put(m_hue + kStep, m_saturation, m_brightness);
        case Qt::Key_PageDown:
            return Put(m_hue - kStep, m_saturation, m_brightness);
        default:
            QWidget::keyPressEvent(event);
    }
}

void CColourField::Put(int hue, int saturation, int brightness) {
    m_hue = std::clamp(hue, 0, kMostHue);
    m_saturation = std::clamp(saturation, 0, kMost);
    m_brightness = std::clamp(brightness, 0, kMost);
    update();
    emit Picked(Colour());
}

}  // namespace rlx
