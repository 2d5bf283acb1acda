#include "skins/ui/skin_preview.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "uikit/bitmap_image.h"
#include "uikit/look.h"

namespace rlx {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kHourAngle = (10 + 9 / 60.0) * 30;  // degrees from twelve: nine past ten
constexpr double kMinuteAngle = 9 * 6;
constexpr double kSecondAngle = 36 * 6;

struct Hand {
    double degrees;
    double length;  ///< of the radius
    double width;
    SkinKey colour;
};

constexpr Hand kHands[] = {
    {kHourAngle, 0.5, 0.13, SkinKey::kClocksCMAC},
    {kMinuteAngle, 0.75, 0.10, SkinKey::kClocksCMAC},
    {kSecondAngle, 0.8, 0.05, SkinKey::kClocksCMSC},
};

QPointF AtAngle(const QPointF& centre, double degrees, double length) {
    const double angle = degrees * kPi / 180;
    return centre + QPointF(std::sin(angle), -std::cos(angle)) * length;
}

void PaintFace(QPainter& painter, const QRectF& square, const CLook& look) {
    const double radius = square.width() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.Panel());
    painter.drawEllipse(square);
    painter.setPen(QPen(look.Colour(SkinKey::kClocksCMAC), radius * 0.08, Qt::SolidLine, Qt::RoundCap));
    for (int hour = 0; hour < 12; ++hour)
        painter.drawPoint(AtAngle(square.center(), hour * 30.0, radius * 0.85));
    for (const Hand& hand : kHands) {
        painter.setPen(QPen(look.Colour(hand.colour), radius * hand.width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(square.center(), AtAngle(square.center(), hand.degrees, radius * hand.length));
    }
}

/// Texts are told by bars: at this size nobody could read them.
void PaintBars(QPainter& painter, const QRectF& area, const CLook& look) {
    constexpr struct {
        double top, height, width;
        SkinKey colour;
    } kBars[] = {
        {0.02, 0.20, 0.7, SkinKey::kClocksCMCN},
        {0.34, 0.36, 1.0, SkinKey::kClocksCMDC},
        {0.82, 0.16, 0.8, SkinKey::kClocksCMD},
    };
    painter.setPen(Qt::NoPen);
    for (const auto& bar : kBars) {
        const QRectF rect(area.left(), area.top() + bar.top * area.height(), area.width() * bar.width,
                          area.height() * bar.height);
        painter.setBrush(look.Colour(bar.colour));
        painter.drawRoundedRect(rect, rect.height() / 3, rect.height() / 3);
    }
}

void PaintCard(QPainter& painter, const QRectF& card, const CLook& look) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.Card());
    painter.drawRoundedRect(card, card.height() / 8, card.height() / 8);
    const double gap = card.height() * 0.12;
    const QRectF face(card.left() + gap, card.top() + gap, card.height() - 2 * gap, card.height() - 2 * gap);
    PaintFace(painter, face, look);
    PaintBars(painter, QRectF(face.right() + gap, face.top(), card.right() - face.right() - 2 * gap, face.height()),
              look);
}

/// The map in `area` pixels with an evening's night on its right.
QImage NightMap(const CLook& look, const QSize& area) {
    const auto bitmap = look.Map(1);
    if (!bitmap) return {};
    QImage map = ViewOf(*bitmap).scaled(area, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainterPath night(QPointF(map.width(), 0));
    night.lineTo(map.width() * 0.72, 0);
    night.cubicTo(map.width() * 0.72, map.height() * 0.5, map.width() * 0.5, map.height() * 0.5, map.width() * 0.5,
                  map.height());
    night.lineTo(map.width(), map.height());
    QPainter painter(&map);
    painter.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
    painter.fillPath(night, look.Colour(SkinKey::kMapSHADCLR));
    return map;
}

}  // namespace

QPixmap SkinPreview(IFileSystem& files, const IImageCodec& codec, const CSkin& skin, const QSize& size,
                    qreal pixelRatio) {
    CLook look(files, codec);
    look.SetSkin(skin);
    QPixmap pixmap((QSizeF(size) * pixelRatio).toSize());
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(look.Bar());
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    look.PaintBackground(painter, QRect(QPoint(0, 0), size), LookPicture::kClocks);
    const double gap = size.height() * 0.06;
    const double width = size.width() - 2 * gap;
    const QRectF card(gap, gap, width, size.height() * 0.42);
    PaintCard(painter, card, look);
    const double mapHeight = std::min(size.height() - card.bottom() - 2 * gap, width / 2);
    const QRectF mapArea((size.width() - 2 * mapHeight) / 2, card.bottom() + gap, 2 * mapHeight, mapHeight);
    const QImage map = NightMap(look, (mapArea.size() * pixelRatio).toSize());
    if (!map.isNull()) painter.drawImage(mapArea, map);
    return pixmap;
}

QIcon PlainIcon(const QPixmap& pixmap) {
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

QPixmap ColourSwatch(const QColor& colour, const QColor& rim, int size, qreal pixelRatio) {
    const int pixels = qMax(1, qRound(size * pixelRatio));
    QPixmap pixmap(pixels, pixels);
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(rim);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(1, 1, size - 2, size - 2), 3, 3);
    return pixmap;
}

}  // namespace rlx
