#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "feedserver/forecast_cities.h"
#include "feedserver/server_config.h"
#include "feedserver/weather_fetch.h"
#include "feedserver/weather_shelf.h"
#include "platform/file_system.h"

namespace rlx {

/// What a client hears about the weather of a city.
struct WeatherReply {
    int code = 0;  ///< of the protocol
    std::string body;
};

/// How much the weather may take.
struct WeatherLimits {
    unsigned threads = 4;                          ///< fetches at once
    std::size_t queue = 64;                        ///< cities that wait for one of them
    std::chrono::milliseconds longestWait{8'000};  ///< of a client for the first forecast of a city
};

/// Answers for the weather. What is known is given at once, however old; when it is older than an hour, a thread of the
/// source's own fetches a newer one for the next client. All members may be called from any thread after `Begin`.
class CWeatherSource {
public:
    /// Takes one line for the log; called from any thread.
    using Log = std::function<void(const std::string&)>;

    /// Seconds since 1970 in UTC; called from any thread.
    using Clock = std::function<std::int64_t()>;

    /// Says that a question should be asked again. Called once, from a thread of the source, never from within `Ask`.
    using Wake = std::function<void()>;

    /// `files`, used by one thread at a time, keeps forecasts in the folder "weather" below `keep`; an empty `keep`:
    /// they are not kept. `files` outlives the source.
    CWeatherSource(IFileSystem& files, ForecastCities cities, WeatherConfig config, const std::filesystem::path& keep,
                   WeatherReader reader, Clock clock, Log log, WeatherLimits limits = {});
    ~CWeatherSource();
    CWeatherSource(const CWeatherSource&) = delete;
    CWeatherSource& operator=(const CWeatherSource&) = delete;

    /// Reads what was kept and starts the threads.
    void Begin();

    /// The reply, or nothing when it is worth waiting: `wake` is called then, after `longestWait` at the latest. With
    /// an empty `wake` there is always a reply.
    std::optional<WeatherReply> Ask(const std::string& feedName, const Wake& wake);

    /// Tries the source: one city of a web address, every file of a folder. Logs what is wrong. False when the source
    /// cannot be used and no sample stands in. Waits.
    bool Check();

    /// One line for people.
    std::string Health() const;

private:
    struct Waiting {
        std::string feedName;
        std::chrono::steady_clock::time_point until;
        Wake wake;
    };

    void Fetch();
    void FetchOne(const std::string& feedName);
    void Keep(const Forecast& forecast);
    void ReadKept();
    void WakeLate();
    std::vector<Waiting> TakeWaiting(const std::function<bool(const Waiting&)>& which);
    WeatherReply Otherwise(const ForecastCity& city) const;
    bool CheckFolder();
    bool CheckCity(const ForecastCity& city);
    DateTime Now() const { return DateTimeOfSecondNumber(m_clock()); }

    IFileSystem& m_files;
    const ForecastCities m_cities;
    const WeatherConfig m_config;
    const std::filesystem::path m_keep;
    const WeatherReader m_reader;
    const Clock m_clock;
    const Log m_log;
    const WeatherLimits m_limits;

    mutable std::mutex m_mutex;  ///< guards the shelf, the queue and those who wait
    CWeatherShelf m_shelf;
    std::deque<std::string> m_queue;
    std::vector<Waiting> m_waiting;
    std::condition_variable m_work;
    std::condition_variable m_newWaiting;
    std::atomic<bool> m_stop = false;
    std::mutex m_filesMutex;
    std::vector<std::thread> m_threads;
};

}  // namespace rlx
