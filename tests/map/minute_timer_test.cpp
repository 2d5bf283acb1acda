#include "map/minute_timer.h"

#include <future>

namespace rlx {
namespace {

using namespace std::chrono_literals;

/// Counts calls; a future tells when a wanted number was reached.
class CCounter {
public:
    explicit CCounter(int wanted) : m_wanted(wanted) {}
    void Call() {
        if (++m_calls == m_wanted) m_reached.set_value();
    }
    void Wait() { m_reached.get_future().wait(); }
    int Calls() const { return m_calls; }

private:
    const int m_wanted;
    std::atomic<int> m_calls{0};
    std::promise<void> m_reached;
};

TEST(MinuteTimer, RaisesTheFlagAfterSixtyCalls) {
    CCounter fewer(CMinuteTimer::kCallsPerMinute - 1);
    std::atomic<bool> early{true};
    CCounter all(CMinuteTimer::kCallsPerMinute);
    CMinuteTimer* self = nullptr;
    CMinuteTimer timer(
        [&] {
            fewer.Call();
            if (fewer.Calls() == CMinuteTimer::kCallsPerMinute - 1) early = self->TakeMinute();
            all.Call();
        },
        1ms);
    self = &timer;
    timer.SetVisible(true);
    EXPECT_TRUE(timer.TakeMinute());  // shown anew
    all.Wait();
    EXPECT_FALSE(early);
    EXPECT_TRUE(timer.TakeMinute());
}

TEST(MinuteTimer, IsSilentWhenHiddenAndStopsAtOnce) {
    CCounter counter(3);
    {
        CMinuteTimer timer([&] { counter.Call(); }, 1ms);
        EXPECT_EQ(counter.Calls(), 0);
        timer.SetVisible(true);
        counter.Wait();
        timer.SetVisible(false);
        const int calls = counter.Calls();
        timer.SetVisible(false);
        EXPECT_EQ(counter.Calls(), calls);
    }
    // A timer that would call in an hour ends without waiting for it.
    CMinuteTimer slow([] {}, 1h);
    slow.SetVisible(true);
}

}  // namespace
}  // namespace rlx
