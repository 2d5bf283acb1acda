#include "tools/ui/tool_button.h"

#include <QPainter>
#include <algorithm>

#include "uikit/icons.h"

namespace rlx {

namespace {

constexpr QSize kUsualSize(150, 120);
constexpr double kRadius = 12;
constexpr int kMargin = 5;
constexpr int kLargestIcon = 64;
constexpr int kSmallestFont = 11;  // pixels
constexpr int kLargestFont = 16;
constexpr int kWidthOfLargestFont = 190;

QFont FontFor(const QFont& base, int width) {
    QFont font = base;
    font.setPixelSize(std::clamp(width * kLargestFont / kWidthOfLargestFont, kSmallestFont, kLargestFont));
    font.setWeight(QFont::DemiBold);
    return font;
}

}  // namespace

CToolButton::CToolButton(const QString& iconName, const QString& title, const CLook& look, QWidget* parent)
    : QAbstractButton(parent), m_iconName(iconName), m_title(title), m_look(look) {
    setObjectName("tool_" + iconName);
    setAccessibleName(title);
    setFocusPolicy(Qt::StrongFocus);
}

QSize CToolButton::sizeHint() const {
    return kUsualSize;
}

void CToolButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor card = m_look.Card();
    if (underMouse() || isDown()) card.setAlpha(isDown() ? 160 : 240);
    painter.setPen(hasFocus() ? QPen(m_look.PanelText(), 2) : QPen(Qt::NoPen));
    painter.setBrush(card);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);

    painter.setFont(FontFor(font(), width()));
    painter.setPen(m_look.PanelText());  // without a pen the text has no size
    const QRect inner = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int textHeight = painter.boundingRect(inner, flags, m_title).height();
    const int icon = std::clamp(inner.height() - textHeight - kMargin, 0, std::min(kLargestIcon, inner.width()));
    const int top = inner.top() + (inner.height() - icon - kMargin - textHeight) / 2;
    const QPixmap pixmap = TintedPixmap(m_iconName, m_look.PanelText(), icon, devicePixelRatioF());
    painter.drawPixmap(QPoint(inner.center().x() - icon / 2, top), pixmap);
    painter.drawText(QRect(inner.left(), top + icon + kMargin, inner.width(), textHeight), flags, m_title);
}

void CToolButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void CToolButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

}  // namespace rlx
