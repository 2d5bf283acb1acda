#pragma once

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>
#include <vector>

namespace rlx::test {

/// One piece of text that a widget painted, by whatever means.
struct PaintedText {
    QString text;
    QRectF rect;  ///< in the widget's own coordinates
};

/// Takes the texts out of what is painted and forgets the rest.
class CTextEngine : public QPaintEngine {
public:
    explicit CTextEngine(std::vector<PaintedText>& texts) : QPaintEngine(AllFeatures), m_texts(texts) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QRectF rect(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        m_texts.push_back({item.text(), painter()->combinedTransform().mapRect(rect)});
    }
    Type type() const override { return User; }

private:
    std::vector<PaintedText>& m_texts;
};

/// A sheet as large as the widget.
class CTextDevice : public QImage {
public:
    CTextDevice(const QSize& size, std::vector<PaintedText>& texts) : QImage(size, Format_RGB32), m_engine(texts) {}

    QPaintEngine* paintEngine() const override { return &m_engine; }

private:
    mutable CTextEngine m_engine;
};

/// What the widget itself paints, without its children.
inline std::vector<PaintedText> PaintedTexts(QWidget& widget) {
    std::vector<PaintedText> texts;
    CTextDevice device(widget.size(), texts);
    QPainter painter(&device);
    widget.render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    return texts;
}

}  // namespace rlx::test
