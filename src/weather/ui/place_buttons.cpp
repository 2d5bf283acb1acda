#include "weather/ui/place_buttons.h"

#include <QContextMenuEvent>
#include <algorithm>

namespace rlx {

namespace {

constexpr int kLongTap = 600;  // milliseconds

}  // namespace

CPlaceButtons::CPlaceButtons(const CLook& look, QWidget* parent) : QObject(parent) {
    for (std::size_t slot = 0; slot < m_buttons.size(); ++slot) {
        auto* button = new CLinkButton(look, SkinKey::kWeatherCNSC, parent);
        button->setObjectName(QStringLiteral("place%1").arg(slot));
        button->setCheckable(true);
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, [this, slot] { emit Chosen(slot); });
        m_buttons[slot] = button;
    }
    CLinkButton::WriteAlike({m_buttons.begin(), m_buttons.end()});
    m_longTap.setSingleShot(true);
    m_longTap.setInterval(kLongTap);
    connect(&m_longTap, &QTimer::timeout, this, [this] {
        CLinkButton* button = m_buttons[m_held];
        button->setDown(false);
        emit MenuWanted(m_held, button->mapToGlobal(button->rect().bottomLeft()));
    });
}

void CPlaceButtons::Show(std::size_t slot, const QString& name, const QString& tip, bool checked) {
    m_buttons[slot]->setText(name);
    m_buttons[slot]->setToolTip(tip);
    m_buttons[slot]->setChecked(checked);
}

void CPlaceButtons::Arrange(const std::array<QRect, kWeatherPlaceCount>& places) {
    for (std::size_t slot = 0; slot < m_buttons.size(); ++slot)
        m_buttons[slot]->setGeometry(places[slot]);
}

std::optional<std::size_t> CPlaceButtons::SlotOf(const QObject* button) const {
    const auto found = std::find(m_buttons.begin(), m_buttons.end(), button);
    if (found == m_buttons.end()) return std::nullopt;
    return static_cast<std::size_t>(found - m_buttons.begin());
}

bool CPlaceButtons::eventFilter(QObject* watched, QEvent* event) {
    const auto slot = SlotOf(watched);
    if (slot && event->type() == QEvent::MouseButtonPress) {
        m_held = *slot;
        m_longTap.start();
    } else if (slot && (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::Leave)) {
        m_longTap.stop();
    } else if (slot && event->type() == QEvent::ContextMenu) {
        m_longTap.stop();
        emit MenuWanted(*slot, static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace rlx
