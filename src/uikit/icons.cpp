#include "uikit/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace rlx {

namespace {

/// Paints the vectors afresh for every size and device pixel ratio.
class CTintedIconEngine : public QIconEngine {
public:
    CTintedIconEngine(QString name, QColor colour) : m_name(std::move(name)), m_colour(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        const int size = qMin(rect.width(), rect.height());
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * 0.4);
        const QPoint at = rect.center() - QPoint(size / 2 - 1 + size % 2, size / 2 - 1 + size % 2);
        painter->drawPixmap(QRect(at, QSize(size, size)), TintedPixmap(m_name, m_colour, size, ratio));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new CTintedIconEngine(m_name, m_colour); }

private:
    QString m_name;
    QColor m_colour;
};

}  // namespace

QPixmap TintedPixmap(const QString& name, const QColor& colour, int size, qreal pixelRatio) {
    QSvgRenderer renderer(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    const int pixels = qMax(1, qRound(size * pixelRatio));
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    if (renderer.isValid()) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), colour);
    }
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

QIcon TintedIcon(const QString& name, const QColor& colour) {
    if (!QFile::exists(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"))) return {};
    return QIcon(new CTintedIconEngine(name, colour));
}

}  // namespace rlx
