#include "app/title_bar.h"

#include <QHBoxLayout>
#include <QPainter>

#include "uikit/icons.h"

namespace rlx {

namespace {

constexpr int kIconSize = 20;
constexpr double kDotRadius = 5;

QToolButton* MakeButton(QWidget* parent, const char* name) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setIconSize({kIconSize, kIconSize});
    button->setFixedSize(CTitleBar::kLeastHeight, CTitleBar::kLeastHeight);
    return button;
}

/// A dot in the corner, with a ring of the ground around it: seen in every skin, and without telling colours apart.
QPixmap WithDot(QPixmap icon, const QColor& dot, const QColor& ground) {
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ground, 2));
    painter.setBrush(dot);
    painter.drawEllipse(QPointF(kIconSize - kDotRadius, kDotRadius), kDotRadius, kDotRadius);
    return icon;
}

}  // namespace

CTitleBar::CTitleBar(QWidget* parent)
    : QWidget(parent),
      m_menu(MakeButton(this, "menuButton")),
      m_title(new QLabel(this)),
      m_news(MakeButton(this, "newsButton")) {
    setObjectName("titleBar");
    m_title->setObjectName("screenTitle");
    m_title->setMinimumWidth(0);
    m_menu->setPopupMode(QToolButton::InstantPopup);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setSpacing(4);
    layout->addWidget(m_menu);
    layout->addWidget(m_title, 1);
    layout->addWidget(m_news);
    connect(m_news, &QToolButton::clicked, this, &CTitleBar::NewsChosen);
}

void CTitleBar::SetTitle(const QString& title) {
    m_title->setText(title);
}

void CTitleBar::SetMenu(QMenu* menu, const QString& name) {
    m_menu->setMenu(menu);
    m_menu->setToolTip(name);
    m_menu->setAccessibleName(name);
}

void CTitleBar::SetNews(bool fresh, const QString& name) {
    m_fresh = fresh;
    m_news->setToolTip(name);
    m_news->setAccessibleName(name);
    PaintIcons();
}

void CTitleBar::SetColours(const QColor& ground, const QColor& text) {
    m_ground = ground;
    m_text = text;
    setStyleSheet(
        QStringLiteral(
            "QToolButton { border: none; border-radius: 8px; } QToolButton::menu-indicator { image: none; }"
            "QToolButton:focus { border: 2px solid %1; } QLabel { color: %1; font-weight: 600; font-size: 14px; }")
            .arg(text.name()));
    PaintIcons();
    update();
}

void CTitleBar::PaintIcons() {
    m_menu->setIcon(TintedIcon("menu", m_text));
    m_news->setIcon(m_fresh
                        ? QIcon(WithDot(TintedPixmap("news", m_text, kIconSize, devicePixelRatioF()), m_text, m_ground))
                        : TintedIcon("news", m_text));
}

void CTitleBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), m_ground);
}

}  // namespace rlx
