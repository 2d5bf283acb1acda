#include "clocks/reminder_clock.h"

#include "places/city_search.h"

namespace rlx {

std::optional<CityIndex> CReminderClock::Find(std::u16string_view place) {
    return CCitySearch(m_cities).FindPlace(place);
}

CityRecord CReminderClock::CityOf(std::u16string_view place) {
    return m_cities.Record(Find(place).value_or(m_settings.home)).value_or(CityRecord{});
}

DeviceZone CReminderClock::Zone() {
    if (m_settings.syncZone != 0) return {m_clock.StandardBias(), {}};
    const CityRecord home = m_cities.Record(m_settings.home).value_or(CityRecord{});
    return {std::nullopt, {home.gmt, home.dstRule}};
}

ReminderMoment CReminderClock::MomentOf(const Reminder& reminder) {
    const CityRecord city = CityOf(reminder.place);
    const DeviceMoment moment = DeviceTimeOf({city.gmt, city.dstRule}, Zone(), reminder.time);
    return {moment.device, AddSeconds(m_clock.UtcOf(moment.device), moment.later), moment.lies};
}

DateTime CReminderClock::CityTime(std::u16string_view place, const DateTime& device) {
    const CityRecord city = CityOf(place);
    return CityTimeAt({city.gmt, city.dstRule}, Zone(), device);
}

}  // namespace rlx
