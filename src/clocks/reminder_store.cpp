#include "clocks/reminder_store.h"

#include <algorithm>

#include "base/iso_day.h"
#include "base/number.h"
#include "platform/registry_value.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr RegistryRoot kRoot = RootOf(keys::kAlarms);
constexpr std::u16string_view kTold = u"told";
constexpr std::u16string_view kClaimed = u"claimed ";

enum Value : std::size_t { kClock, kDate, kText, kCity, kMark, kValues };
using Values = decltype(StoredReminder::values);
using Assignments = std::array<RegistryAssignment, kValues>;

std::u16string_view NameOf(std::size_t number, std::size_t value) {
    switch (value) {
        case kClock:
            return names::kAlarmTimes[number];
        case kDate:
            return names::kAlarmDates[number];
        case kText:
            return names::kAlarmTexts[number];
        case kCity:
            return names::kAlarmCities[number];
        default:
            return names::kAlarmMarks[number];
    }
}

Assignments Named(std::size_t number, const Values& values) {
    Assignments assignments;
    for (std::size_t value = 0; value < kValues; ++value)
        assignments[value] = {NameOf(number, value), values[value]};
    return assignments;
}

std::u16string ClockText(const DateTime& time) {
    return FormatTwoDigits(time.hour) + u":" + FormatTwoDigits(time.minute);
}

std::optional<DateTime> ParseTime(std::u16string_view date, std::u16string_view clock) {
    const auto day = ParseIsoDay(date);
    if (!day || clock.size() != 5 || clock[2] != u':') return std::nullopt;
    const auto isDigit = [](char16_t unit) { return unit >= u'0' && unit <= u'9'; };
    if (std::count_if(clock.begin(), clock.end(), isDigit) != 4) return std::nullopt;
    const DateTime time{*day, ParseInteger(clock.substr(0, 2)), ParseInteger(clock.substr(3)), 0, 0};
    return IsValid(time) ? std::optional(time) : std::nullopt;
}

std::u16string MarkText(const ReminderMark& mark) {
    if (mark.state == ReminderMark::State::kTold) return std::u16string(kTold);
    return std::u16string(kClaimed) + IsoDay(mark.claimedAt.date) + u" " + ClockText(mark.claimedAt) + u":" +
           FormatTwoDigits(mark.claimedAt.second);
}

/// What is not understood counts as waiting: better told twice than never.
ReminderMark ParseMark(std::u16string_view text) {
    if (text == kTold) return {ReminderMark::State::kTold, {}};
    constexpr std::size_t kDateEnd = kClaimed.size() + 10;
    if (text.size() != kDateEnd + 9 || !text.starts_with(kClaimed)) return {};
    auto time = ParseTime(text.substr(kClaimed.size(), 10), text.substr(kDateEnd + 1, 5));
    const auto second = ParseWholeInteger(text.substr(kDateEnd + 7), 0, 59);
    if (!time || !second) return {};
    time->second = static_cast<int>(*second);
    return {ReminderMark::State::kClaimed, *time};
}

std::optional<RegistryValue> ValueOf(const ReminderMark& mark) {
    if (mark.state == ReminderMark::State::kWaiting) return std::nullopt;
    return TextValue(MarkText(mark));
}

}  // namespace

std::optional<StoredReminder> CReminderStore::Load(std::size_t number) const {
    StoredReminder stored;
    stored.number = number;
    std::array<std::u16string, kValues> texts;
    for (std::size_t value = 0; value < kValues; ++value) {
        stored.values[value] = m_registry.Query(kRoot, keys::kAlarms, NameOf(number, value));
        if (stored.values[value]) texts[value] = TextOf(*stored.values[value]).value_or(u"");
    }
    const auto time = ParseTime(texts[kDate], texts[kClock]);
    if (!time) return std::nullopt;
    stored.reminder = {*time, texts[kCity], texts[kText].substr(0, kLongestReminder)};
    stored.mark = ParseMark(texts[kMark]);
    return stored;
}

bool CReminderStore::Save(std::size_t number, const Reminder& reminder) {
    Values values;
    values[kClock] = TextValue(ClockText(reminder.time));
    values[kDate] = TextValue(IsoDay(reminder.time.date));
    values[kText] = TextValue(reminder.text.substr(0, kLongestReminder));
    values[kCity] = TextValue(reminder.place);
    return m_registry.Exchange(kRoot, keys::kAlarms, {}, Named(number, values));
}

bool CReminderStore::Clear(std::size_t number) {
    return m_registry.Exchange(kRoot, keys::kAlarms, {}, Named(number, {}));
}

bool CReminderStore::Mark(StoredReminder& stored, const ReminderMark& mark) {
    Values values = stored.values;
    values[kMark] = ValueOf(mark);
    const RegistryAssignment change{NameOf(stored.number, kMark), values[kMark]};
    const Assignments expected = Named(stored.number, stored.values);
    if (!m_registry.Exchange(kRoot, keys::kAlarms, expected, {&change, 1})) return false;
    stored.values = values;
    stored.mark = mark;
    return true;
}

}  // namespace rlx
