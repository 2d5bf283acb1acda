#pragma once

#include <QPixmap>
#include <QWidget>

namespace rlx {

/// Shows a picture as large as it fits. A click, or Space, shows it over the whole dialog until the next one.
/// User-interface thread.
class CPicturePanel : public QWidget {
    Q_OBJECT

public:
    explicit CPicturePanel(const QString& name, QWidget* parent = nullptr);

    void SetPicture(const QPixmap& picture);

protected:
    QSize sizeHint() const override { return {160, 200}; }
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Enlarge();

    QPixmap m_picture;
    bool m_isLarge = false;  ///< this one is what `Enlarge` made
};

}  // namespace rlx
