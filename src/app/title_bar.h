#pragma once

#include <QColor>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QWidget>

namespace rlx {

/// The strip above a screen: menu button, the screen's name, the sign that there is news.
class CTitleBar : public QWidget {
    Q_OBJECT

public:
    /// Its height, unless the system's font is a large one.
    static constexpr int kLeastHeight = 30;

    explicit CTitleBar(QWidget* parent = nullptr);

    void SetTitle(const QString& title);
    void SetMenu(QMenu* menu, const QString& name);
    void OpenMenu() { m_menu->showMenu(); }

    /// The button of the News page; `fresh` marks it.
    void SetNews(bool fresh, const QString& name);
    void SetColours(const QColor& ground, const QColor& text);

signals:
    void NewsChosen();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintIcons();

    QToolButton* m_menu;
    QLabel* m_title;
    QToolButton* m_news;
    bool m_fresh = false;
    QColor m_ground;
    QColor m_text;
};

}  // namespace rlx
