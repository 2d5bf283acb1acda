#pragma once

#include <QBoxLayout>
#include <QButtonGroup>
#include <QColor>
#include <QToolButton>
#include <QWidget>
#include <vector>

namespace rlx {

/// The row of buttons that choose a screen: along the bottom of an upright window, along the left of a lying one.
class CScreenRow : public QWidget {
    Q_OBJECT

public:
    explicit CScreenRow(QWidget* parent = nullptr);

    /// Appends a button. `title` is its name for screen readers, its tool tip and, where there is room, its label.
    void Add(const QString& iconName, const QString& title);

    void SetCurrent(int index);
    void SetColours(const QColor& ground, const QColor& text);

    /// Puts the buttons beside or below each other and shows labels when the window has room for them.
    void SetForm(Qt::Orientation orientation, bool labels);

    /// How much of the window such a row takes at least: its height below an upright window, its width beside a lying
    /// one.
    static int LeastExtent(Qt::Orientation orientation, bool labels);

signals:
    void Chosen(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintIcons();

    QBoxLayout* m_layout;
    QButtonGroup m_buttons;
    std::vector<QString> m_iconNames;
    QColor m_ground;
    QColor m_text;
};

}  // namespace rlx
