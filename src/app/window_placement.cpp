#include "app/window_placement.h"

#include <QEvent>
#include <QScreen>

#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr int kDelayMilliseconds = 500;

}  // namespace

CWindowPlacement::CWindowPlacement(QWidget& window, IRegistry& registry)
    : QObject(&window), m_window(window), m_registry(registry) {
    Restore();
    window.resize(window.size().boundedTo(window.screen()->availableSize()));
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelayMilliseconds);
    connect(&m_delay, &QTimer::timeout, this, &CWindowPlacement::Save);
    window.installEventFilter(this);
}

bool CWindowPlacement::eventFilter(QObject* watched, QEvent* event) {
    const bool moves = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (moves && m_window.isVisible()) m_delay.start();
    if (event->type() == QEvent::Close && m_delay.isActive()) {
        m_delay.stop();
        Save();
    }
    return QObject::eventFilter(watched, event);
}

void CWindowPlacement::Restore() {
    const auto value = m_registry.Query(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kWindow);
    if (!value || value->type != RegistryType::kBinary) return;
    m_saved = QByteArray::fromStdString(value->bytes);
    m_window.restoreGeometry(m_saved);
}

/// A full screen is chosen anew at each start; the window behind it is what is remembered.
void CWindowPlacement::Save() {
    if (m_window.isFullScreen() || m_window.isMinimized()) return;
    const QByteArray geometry = m_window.saveGeometry();
    if (geometry == m_saved) return;
    m_saved = geometry;
    m_registry.Set(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kWindow,
                   {RegistryType::kBinary, geometry.toStdString()});
}

}  // namespace rlx
