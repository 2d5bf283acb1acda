#pragma once

#include <QObject>
#include <QTimer>

#include "platform/clock.h"

namespace rlx {

/// Signals once a second, just after the device clock's second has changed. Runs only between `Start` and `Stop`, so
/// that a hidden window costs nothing. User-interface thread.
class CSecondTicker : public QObject {
    Q_OBJECT

public:
    explicit CSecondTicker(const IClock& clock, QObject* parent = nullptr);

    void Start();
    void Stop();
    bool IsRunning() const { return m_timer.isActive(); }

signals:
    void Ticked();

private:
    void Aim();
    void Fire();

    const IClock& m_clock;
    QTimer m_timer;
};

}  // namespace rlx
