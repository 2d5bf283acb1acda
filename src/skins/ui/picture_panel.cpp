#include "skins/ui/picture_panel.h"

#include <QKeyEvent>
#include <QPainter>

namespace rlx {

CPicturePanel::CPicturePanel(const QString& name, QWidget* parent) : QWidget(parent) {
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(64, 64);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void CPicturePanel::SetPicture(const QPixmap& picture) {
    m_picture = picture;
    update();
}

void CPicturePanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_isLarge) painter.fillRect(rect(), palette().color(QPalette::Window));
    if (m_picture.isNull()) return;
    QSizeF fitted = m_picture.deviceIndependentSize().scaled(size(), Qt::KeepAspectRatio);
    if (m_isLarge) fitted = fitted.boundedTo(m_picture.deviceIndependentSize());
    const QRectF area(QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted);
    const QImage smooth = m_picture.toImage().scaled((fitted * devicePixelRatioF()).toSize(), Qt::IgnoreAspectRatio,
                                                     Qt::SmoothTransformation);
    painter.drawImage(area, smooth);
    painter.setPen(palette().color(hasFocus() ? QPalette::WindowText : QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void CPicturePanel::mouseReleaseEvent(QMouseEvent* /*event*/) {
    if (m_isLarge) {
        deleteLater();
    } else {
        Enlarge();
    }
}

void CPicturePanel::keyPressEvent(QKeyEvent* event) {
    if (m_isLarge) {
        deleteLater();
    } else if (event->key() == Qt::Key_Space) {
        Enlarge();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CPicturePanel::Enlarge() {
    auto* large = new CPicturePanel(accessibleName(), window());
    large->setObjectName("enlarged");
    large->m_isLarge = true;
    large->SetPicture(m_picture);
    large->setGeometry(window()->rect());
    large->show();
    large->setFocus();
}

}  // namespace rlx
