#include "app/screen_row.h"

#include <QPainter>

#include "uikit/icons.h"

namespace rlx {

namespace {

constexpr int kIconSize = 24;
constexpr int kButtonSize = 44;
constexpr int kLabelledWidth = 96;
constexpr int kLabelledHeight = 60;
constexpr int kMargin = 2;

}  // namespace

CScreenRow::CScreenRow(QWidget* parent) : QWidget(parent), m_layout(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    setObjectName("screenRow");
    m_layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_layout->setSpacing(0);
    m_buttons.setExclusive(true);
    connect(&m_buttons, &QButtonGroup::idClicked, this, &CScreenRow::Chosen);
}

void CScreenRow::Add(const QString& iconName, const QString& title) {
    auto* button = new QToolButton(this);
    button->setObjectName("screen_" + iconName);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setText(title);
    button->setToolTip(title);
    button->setAccessibleName(title);
    button->setIconSize({kIconSize, kIconSize});
    if (m_text.isValid()) button->setIcon(TintedIcon(iconName, m_text));
    m_buttons.addButton(button, static_cast<int>(m_iconNames.size()));
    m_iconNames.push_back(iconName);
    m_layout->addWidget(button);
}

void CScreenRow::SetCurrent(int index) {
    // Tab goes to the one that is chosen, arrow keys go on from there.
    const QAbstractButton* stop = m_buttons.button(index) != nullptr ? m_buttons.button(index) : m_buttons.button(0);
    for (QAbstractButton* button : m_buttons.buttons())
        button->setFocusPolicy(button == stop ? Qt::TabFocus : Qt::NoFocus);
    if (QAbstractButton* button = m_buttons.button(index)) {
        button->setChecked(true);
    } else if (QAbstractButton* last = m_buttons.checkedButton()) {
        // A screen outside the row is shown.
        m_buttons.setExclusive(false);
        last->setChecked(false);
        m_buttons.setExclusive(true);
    }
}

void CScreenRow::SetColours(const QColor& ground, const QColor& text) {
    m_ground = ground;
    m_text = text;
    PaintIcons();
    const QString chosen = QStringLiteral("rgba(%1,%2,%3,52)").arg(text.red()).arg(text.green()).arg(text.blue());
    setStyleSheet(
        QStringLiteral("QToolButton { border: none; border-radius: 10px; color: %1; font-size: 11px; padding: 2px; }"
                       "QToolButton:checked { background: %2; }"
                       "QToolButton:focus { border: 2px solid %1; }")
            .arg(text.name(), chosen));
    update();
}

void CScreenRow::SetForm(Qt::Orientation orientation, bool labels) {
    const bool lying = orientation == Qt::Horizontal;
    m_layout->setDirection(lying ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_layout->setAlignment(lying ? Qt::Alignment() : Qt::AlignTop);
    for (QAbstractButton* each : m_buttons.buttons()) {
        auto* button = qobject_cast<QToolButton*>(each);
        button->setToolButtonStyle(labels ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
        button->setSizePolicy(lying ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
        const int height = labels ? kLabelledHeight : kButtonSize - 2 * kMargin;
        button->setMinimumSize(lying ? 0 : LeastExtent(orientation, labels) - 2 * kMargin, height);
    }
}

int CScreenRow::LeastExtent(Qt::Orientation orientation, bool labels) {
    if (orientation == Qt::Horizontal) return labels ? kLabelledHeight + 2 * kMargin : kButtonSize;
    return (labels ? kLabelledWidth : kButtonSize) + 2 * kMargin;
}

void CScreenRow::PaintIcons() {
    for (std::size_t i = 0; i < m_iconNames.size(); ++i) {
        m_buttons.button(static_cast<int>(i))->setIcon(TintedIcon(m_iconNames[i], m_text));
    }
}

void CScreenRow::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), m_ground);
}

}  // namespace rlx
