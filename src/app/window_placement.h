#pragma once

#include <QTimer>
#include <QWidget>

#include "platform/registry.h"

namespace rlx {

/// Remembers where a window stood and how large it was: the binary value "window" of "Roamlytix" holds what
/// `QWidget::saveGeometry` gives. It is written shortly after the last change and when the window closes. The registry
/// outlives it; the window owns it. User-interface thread.
class CWindowPlacement : public QObject {
    Q_OBJECT

public:
    /// Puts `window` where it was, as far as there is still a screen there.
    CWindowPlacement(QWidget& window, IRegistry& registry);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Restore();
    void Save();

    QWidget& m_window;
    IRegistry& m_registry;
    QTimer m_delay;
    QByteArray m_saved;
};

}  // namespace rlx
