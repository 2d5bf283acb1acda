#include "uikit/second_ticker.h"

namespace rlx {

namespace {

// A timer may fire a little early; aiming behind the change keeps it from firing twice in one second.
constexpr int kBehindTheSecond = 15;

}  // namespace

CSecondTicker::CSecondTicker(const IClock& clock, QObject* parent) : QObject(parent), m_clock(clock) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &CSecondTicker::Fire);
}

void CSecondTicker::Start() {
    if (!m_timer.isActive()) Aim();
}

void CSecondTicker::Stop() {
    m_timer.stop();
}

void CSecondTicker::Aim() {
    m_timer.start(1000 - m_clock.Now().millisecond + kBehindTheSecond);
}

void CSecondTicker::Fire() {
    Aim();
    emit Ticked();
}

}  // namespace rlx
