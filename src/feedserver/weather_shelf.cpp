#include "feedserver/weather_shelf.h"

#include "base/text.h"
#include "weather/forecast_writer.h"

namespace rlx {

namespace {

/// True while `rest` is not over. A clock that was set back ends it.
bool Rests(std::optional<std::int64_t> since, std::int64_t rest, std::int64_t now) {
    return since && now >= *since && now - *since < rest;
}

}  // namespace

CWeatherShelf::Look CWeatherShelf::Ask(const std::string& feedName, std::int64_t now) {
    Entry& entry = m_entries[feedName];
    Look look;
    // The city's date is never more than a day behind that of UTC.
    if (entry.lastDay >= DayNumber(DateTimeOfSecondNumber(now).date) - 1) look.reply = entry.reply;
    look.fetching = entry.fetching;
    look.mustFetch = !entry.fetching && !Rests(entry.asked, kCityRest, now) && !Rests(m_unreachable, kSourceRest, now);
    if (look.mustFetch) {
        entry.askedBefore = entry.asked;
        entry.asked = now;
        entry.fetching = true;
    }
    return look;
}

void CWeatherShelf::Succeed(const std::string& feedName, const Forecast& forecast) {
    Entry& entry = m_entries[feedName];
    entry.fetching = false;
    entry.reply = WriteForecast(forecast);
    entry.issued = forecast.issued;
    entry.lastDay = DayNumber(forecast.days.back().date);
    m_unreachable.reset();
}

void CWeatherShelf::Fail(const std::string& feedName, bool reached, std::int64_t now) {
    if (reached) {
        m_entries[feedName].fetching = false;
        return;
    }
    Withdraw(feedName);
    m_unreachable = now;
}

void CWeatherShelf::Withdraw(const std::string& feedName) {
    Entry& entry = m_entries[feedName];
    entry.fetching = false;
    entry.asked = entry.askedBefore;
}

void CWeatherShelf::Restore(const Forecast& forecast) {
    const std::string feedName = Narrow(forecast.placeFeedName);
    Succeed(feedName, forecast);
    m_entries[feedName].asked = SecondNumber(forecast.issued);
}

CWeatherShelf::Summary CWeatherShelf::Count() const {
    Summary summary;
    for (const auto& [name, entry] : m_entries) {
        if (entry.reply.empty()) continue;
        ++summary.forecasts;
        if (!summary.newest || SecondNumber(*summary.newest) < SecondNumber(entry.issued))
            summary.newest = entry.issued;
    }
    return summary;
}

}  // namespace rlx
