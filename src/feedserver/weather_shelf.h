#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "weather/forecast.h"

namespace rlx {

/// The last good forecast of each city and the rules when a source may be asked again. Instants are seconds since 1970
/// in UTC. Names are the caller's to check: an entry stays for each one asked for. Used under the owner's lock.
class CWeatherShelf {
public:
    /// A source is asked for a city once in this time at most, whatever came of it.
    static constexpr std::int64_t kCityRest = 3600;

    /// A source that could not be connected to is left alone for this time, for all cities. The city that was asked for
    /// may be asked for again then: the source never saw the question.
    static constexpr std::int64_t kSourceRest = 300;

    /// What there is to say about a city.
    struct Look {
        std::string reply;       ///< in the form of the feed; empty when nothing good is there
        bool mustFetch = false;  ///< the caller has to fetch now, and to call one of the three below
        bool fetching = false;   ///< somebody fetches already
    };
    Look Ask(const std::string& feedName, std::int64_t now);

    void Succeed(const std::string& feedName, const Forecast& forecast);
    void Fail(const std::string& feedName, bool reached, std::int64_t now);

    /// The fetch was not begun after all.
    void Withdraw(const std::string& feedName);

    /// Puts back what was kept over a restart; its issue time counts as that of the last question.
    void Restore(const Forecast& forecast);

    struct Summary {
        std::size_t forecasts = 0;
        std::optional<DateTime> newest;  ///< issue time
    };
    Summary Count() const;

private:
    struct Entry {
        std::string reply;
        DateTime issued;
        std::int64_t lastDay = 0;  ///< `DayNumber` of the last day that the reply tells
        std::optional<std::int64_t> asked;
        std::optional<std::int64_t> askedBefore;
        bool fetching = false;
    };

    std::map<std::string, Entry> m_entries;
    std::optional<std::int64_t> m_unreachable;  ///< when the source could not be connected to
};

}  // namespace rlx
