#pragma once

#include <QEvent>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>
#include <cmath>
#include <vector>

namespace rlx::test {

/// One piece of text that was painted, by whatever means, and how well it stands out from what it was painted on.
struct PaintedText {
    QString text;
    QRectF rect;  ///< in the coordinates of what was rendered
    const QWidget* widget;
    QColor pen;
    double ratio = 99;   ///< by WCAG 2.1, against the worst cell of four pixels by four of its ground
    QColor ground = {};  ///< of that cell
};

/// Relative luminance, WCAG 2.1.
inline double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

inline double ContrastRatio(const QColor& one, const QColor& other) {
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

/// Paints all but texts, and measures each text against what lies below it by then.
class CContrastEngine : public QPaintEngine {
public:
    CContrastEngine(QImage& image, const QWidget* const& widget, std::vector<PaintedText>& texts)
        : QPaintEngine(AllFeatures), m_image(image), m_widget(widget), m_texts(texts) {}

    bool begin(QPaintDevice* /*device*/) override { return m_inner.begin(&m_image); }
    bool end() override { return m_inner.end(); }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& now) override {
        m_inner.setPen(now.pen());
        m_inner.setBrush(now.brush());
        m_inner.setBrushOrigin(now.brushOrigin());
        m_inner.setOpacity(now.opacity());
        m_inner.setCompositionMode(now.compositionMode());
        m_inner.setRenderHints(now.renderHints());
        m_inner.setTransform(now.transform());
        if ((now.state() & DirtyClipPath) != 0) m_inner.setClipPath(now.clipPath(), now.clipOperation());
        if ((now.state() & DirtyClipRegion) != 0) m_inner.setClipRegion(now.clipRegion(), now.clipOperation());
        m_inner.setClipping(now.isClipEnabled());
    }
    void drawPath(const QPainterPath& path) override { m_inner.drawPath(path); }
    void drawPixmap(const QRectF& to, const QPixmap& pixmap, const QRectF& from) override {
        m_inner.drawPixmap(to, pixmap, from);
    }
    void drawImage(const QRectF& to, const QImage& image, const QRectF& from,
                   Qt::ImageConversionFlags /*flags*/) override {
        m_inner.drawImage(to, image, from);
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        if (mode == PolylineMode) return m_inner.drawPolyline(points, count);
        m_inner.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        if (m_widget == nullptr || item.text().trimmed().isEmpty()) return;
        const QRectF whole(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        const QRectF own(at.x(), at.y() - item.ascent() * 0.8, item.width(), item.ascent() * 0.8);
        const QRect rect = m_inner.combinedTransform().mapRect(own).toAlignedRect() & m_image.rect();
        PaintedText worst{item.text(), painter()->combinedTransform().mapRect(whole), m_widget,
                          painter()->pen().color()};
        const QTransform back = m_inner.combinedTransform().inverted();  // clips are told in the painter's coordinates
        for (int y = rect.top(); y + 3 <= rect.bottom(); y += 4) {
            for (int x = rect.left(); x + 3 <= rect.right(); x += 4) {
                if (m_inner.hasClipping() && !m_inner.clipRegion().contains(back.mapRect(QRect(x, y, 4, 4)))) continue;
                const QColor cell = MeanOf(QRect(x, y, 4, 4));
                const double ratio = ContrastRatio(worst.pen, cell);
                if (ratio < worst.ratio) {
                    worst.ratio = ratio;
                    worst.ground = cell;
                }
            }
        }
        m_texts.push_back(worst);
    }

private:
    QColor MeanOf(const QRect& cell) const {
        int red = 0;
        int green = 0;
        int blue = 0;
        for (int y = cell.top(); y <= cell.bottom(); ++y) {
            for (int x = cell.left(); x <= cell.right(); ++x) {
                const QRgb pixel = m_image.pixel(x, y);
                red += qRed(pixel);
                green += qGreen(pixel);
                blue += qBlue(pixel);
            }
        }
        return {red / 16, green / 16, blue / 16};
    }

    QImage& m_image;
    const QWidget* const& m_widget;  ///< the one that paints
    std::vector<PaintedText>& m_texts;
    QPainter m_inner;
};

/// A sheet to paint a window on.
class CContrastSheet : public QObject, public QImage {
public:
    explicit CContrastSheet(const QSize& size)
        : QImage(size, Format_RGB32), m_image(size, Format_RGB32), m_engine(m_image, m_widget, m_texts) {
        m_image.fill(Qt::white);
    }
    QPaintEngine* paintEngine() const override { return &m_engine; }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint) m_widget = qobject_cast<QWidget*>(object);
        return false;
    }
    const std::vector<PaintedText>& Texts() const { return m_texts; }

private:
    QImage m_image;
    const QWidget* m_widget = nullptr;
    std::vector<PaintedText> m_texts;
    mutable CContrastEngine m_engine;
};

/// Every text that the window and its children show.
inline std::vector<PaintedText> PaintedTexts(QWidget& window, QWidget::RenderFlags flags = QWidget::DrawChildren) {
    CContrastSheet sheet(window.size());
    qApp->installEventFilter(&sheet);
    QPainter painter(&sheet);
    window.render(&painter, {}, {}, flags | QWidget::DrawWindowBackground);
    painter.end();
    return sheet.Texts();
}

}  // namespace rlx::test
