#include "clocks/reminder_post.h"

#include <algorithm>

#include "clocks/reminder_text.h"
#include "clocks/text_ids.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr ReminderMark kTold{ReminderMark::State::kTold, {}};

}  // namespace

CReminderPost::CReminderPost(const Ports& ports) : m_ports(ports), m_store(ports.registry) {}

CReminderClock CReminderPost::Clock() {
    CRegistryStore settings(m_ports.registry);
    return {m_ports.cities, m_ports.clock, LoadClockSettings(settings)};
}

/// The reminder, if it is due and nobody else was quicker.
std::optional<StoredReminder> CReminderPost::ClaimDue(std::size_t number, CReminderClock& clock, bool missedOnly) {
    auto stored = m_store.Load(number);
    if (!stored) return std::nullopt;
    const DateTime due = clock.MomentOf(stored->reminder).utc;
    const DateTime now = clock.UtcNow();
    if (PhaseOf(stored->mark, due, now) != ReminderPhase::kDue) return std::nullopt;
    if (missedOnly && !IsMissed(due, now)) return std::nullopt;
    if (!m_store.Mark(*stored, {ReminderMark::State::kClaimed, now})) return std::nullopt;
    return stored;
}

std::u16string CReminderPost::TextOf(const StoredReminder& stored, CReminderClock& clock) {
    CRegistryStore settings(m_ports.registry);
    const bool twelve = settings.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    return ReminderText(stored.reminder, clock, twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour, m_ports.texts);
}

void CReminderPost::TellDue(IMessageBoxes* boxes) {
    for (std::size_t number = 0; number < kReminders; ++number) {
        CReminderClock clock = Clock();
        auto stored = ClaimDue(number, clock, false);
        if (!stored) continue;
        const std::u16string title = m_ports.texts.Text(kTextReminder + static_cast<int>(number));
        const std::u16string text = TextOf(*stored, clock);
        if (m_ports.notifier.Notify({title, text})) {
            m_store.Mark(*stored, kTold);
        } else if (boxes == nullptr) {
            m_store.Mark(*stored, {});
        } else {
            // A box may stand for hours, longer than a claim lasts.
            m_store.Mark(*stored, kTold);
            boxes->Show({title, text, BoxIcon::kInformation, BoxButtons::kOk});
        }
    }
}

void CReminderPost::TellMissed(IMessageBoxes& boxes) {
    std::u16string lines;
    for (std::size_t number = 0; number < kReminders; ++number) {
        CReminderClock clock = Clock();
        auto stored = ClaimDue(number, clock, true);
        if (!stored) continue;
        if (!lines.empty()) lines.append(u"\n\n");
        lines += TextOf(*stored, clock);
        m_store.Mark(*stored, kTold);
    }
    if (lines.empty()) return;
    boxes.Show({m_ports.texts.Text(kTextMissedReminders), lines, BoxIcon::kInformation, BoxButtons::kOk});
}

std::vector<DateTime> CReminderPost::Waiting() {
    CReminderClock clock = Clock();
    std::vector<DateTime> times;
    for (std::size_t number = 0; number < kReminders; ++number) {
        const auto stored = m_store.Load(number);
        if (!stored) continue;
        const DateTime due = clock.MomentOf(stored->reminder).utc;
        if (PhaseOf(stored->mark, due, clock.UtcNow()) == ReminderPhase::kWaiting) times.push_back(due);
    }
    std::sort(times.begin(), times.end());
    return times;
}

}  // namespace rlx
