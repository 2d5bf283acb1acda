#include "uikit/look.h"

#include <QLinearGradient>

namespace rlx {

namespace {

constexpr QRgb kInk = 0xFF142B3D;
constexpr QRgb kInkSoft = 0xFF3D5C70;
constexpr QRgb kSecond = 0xFFC62F2F;
constexpr QRgb kBar = 0xFFE6EFF6;
constexpr QRgb kAccent = 0xFF1F6FB2;
constexpr QRgb kCard = 0xB4FFFFFF;
constexpr QRgb kSkyTop = 0xFFCFE1F1;
constexpr QRgb kSkyBottom = 0xFFFBF6EA;

}  // namespace

ClockColours CLook::HomeClock() const {
    return {QColor(kInk), QColor(kInkSoft), QColor(kInk), QColor(kSecond), QColor(kInk)};
}

ClockColours CLook::OtherClocks() const {
    return {QColor(kInk), QColor(kInkSoft), QColor(kInk), QColor(kSecond), QColor(kInkSoft)};
}

QColor CLook::Bar() const {
    return QColor(kBar);
}
QColor CLook::BarText() const {
    return QColor(kInk);
}
QColor CLook::Accent() const {
    return QColor(kAccent);
}
QColor CLook::Card() const {
    return QColor::fromRgba(kCard);
}

void CLook::PaintBackground(QPainter& painter, const QRect& area, LookBackground /*which*/) const {
    QLinearGradient sky(area.topLeft(), area.bottomLeft());
    sky.setColorAt(0, QColor(kSkyTop));
    sky.setColorAt(1, QColor(kSkyBottom));
    painter.fillRect(area, sky);
}

}  // namespace rlx
