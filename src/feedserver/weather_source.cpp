#include "feedserver/weather_source.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/text.h"
#include "feedserver/answers.h"
#include "feedserver/sample_weather.h"
#include "weather/feed_fields.h"
#include "weather/forecast_reader.h"
#include "weather/forecast_writer.h"

namespace rlx {

namespace {

constexpr char kKeptEnding[] = ".txt";

/// The reply about a city that the server does not know.
std::string NoForecast(const std::string& feedName) {
    return "weather_1#\nplace_" + Narrow(FeedText(Widen(feedName))) + "#\nend_0#\n";
}

bool HasSource(const WeatherConfig& config) {
    return config.kind == WeatherKind::kOpenMeteo || config.kind == WeatherKind::kFolder;
}

}  // namespace

CWeatherSource::CWeatherSource(IFileSystem& files, ForecastCities cities, WeatherConfig config,
                               const std::filesystem::path& keep, WeatherReader reader, Clock clock, Log log,
                               WeatherLimits limits)
    : m_files(files),
      m_cities(std::move(cities)),
      m_config(std::move(config)),
      m_keep(keep.empty() || !HasSource(m_config) ? std::filesystem::path() : keep / "weather"),
      m_reader(std::move(reader)),
      m_clock(std::move(clock)),
      m_log(std::move(log)),
      m_limits(limits) {}

CWeatherSource::~CWeatherSource() {
    {
        const std::lock_guard lock(m_mutex);
        m_stop = true;
    }
    m_work.notify_all();
    m_newWaiting.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
}

void CWeatherSource::Begin() {
    if (m_cities.empty()) m_log("weather: no cities in cities.wet and cities.lst");
    if (!m_keep.empty()) ReadKept();
    if (!HasSource(m_config)) return;
    for (unsigned i = 0; i < m_limits.threads; ++i)
        m_threads.emplace_back([this] { Fetch(); });
    m_threads.emplace_back([this] { WakeLate(); });
}

std::optional<WeatherReply> CWeatherSource::Ask(const std::string& feedName, const Wake& wake) {
    const auto city = m_cities.find(feedName);
    if (city == m_cities.end()) return WeatherReply{kCityUnknown, NoForecast(feedName)};
    if (!HasSource(m_config)) return Otherwise(city->second);
    const std::lock_guard lock(m_mutex);
    CWeatherShelf::Look look = m_shelf.Ask(feedName, m_clock());
    if (look.mustFetch) {
        if (m_queue.size() < m_limits.queue) {
            m_queue.push_back(feedName);
            m_work.notify_one();
            look.fetching = true;
        } else {
            m_shelf.Withdraw(feedName);
        }
    }
    if (!look.reply.empty()) return WeatherReply{kGood, std::move(look.reply)};
    if (!look.fetching || !wake) return Otherwise(city->second);
    m_waiting.push_back({feedName, std::chrono::steady_clock::now() + m_limits.longestWait, wake});
    m_newWaiting.notify_one();
    return std::nullopt;
}

WeatherReply CWeatherSource::Otherwise(const ForecastCity& city) const {
    const bool sample = m_config.sample || m_config.kind == WeatherKind::kSample;
    if (!sample || m_config.kind == WeatherKind::kNone) return {kServerError, {}};
    return {kGood, WriteForecast(SampleForecast(city, Now()))};
}

void CWeatherSource::Fetch() {
    for (;;) {
        std::string feedName;
        {
            std::unique_lock lock(m_mutex);
            m_work.wait(lock, [this] { return m_stop || !m_queue.empty(); });
            if (m_stop) return;
            feedName = std::move(m_queue.front());
            m_queue.pop_front();
        }
        FetchOne(feedName);
    }
}

void CWeatherSource::FetchOne(const std::string& feedName) {
    const FetchedForecast fetched = FetchForecast(m_config, m_cities.at(feedName), m_reader, m_stop, Now());
    std::vector<Waiting> waiting;
    {
        const std::lock_guard lock(m_mutex);
        if (fetched.forecast) {
            m_shelf.Succeed(feedName, *fetched.forecast);
        } else {
            m_shelf.Fail(feedName, fetched.reached, m_clock());
        }
        waiting = TakeWaiting([&](const Waiting& each) { return each.feedName == feedName; });
    }
    for (const Waiting& each : waiting)
        each.wake();
    m_log("weather: " + feedName + ": " + (fetched.forecast ? "fetched" : fetched.fault));
    if (fetched.forecast && !m_keep.empty()) Keep(*fetched.forecast);
}

void CWeatherSource::Keep(const Forecast& forecast) {
    const std::lock_guard lock(m_filesMutex);
    const std::filesystem::path file = m_keep / (Narrow(forecast.placeFeedName) + kKeptEnding);
    if (!m_files.WriteFile(file, WriteForecast(forecast))) m_log("keep: " + file.string() + " cannot be written");
}

void CWeatherSource::ReadKept() {
    if (!m_files.CreateFolder(m_keep)) m_log("keep: " + m_keep.string() + " cannot be made");
    for (const auto& [feedName, city] : m_cities) {
        const std::optional<std::string> bytes = m_files.ReadFile(m_keep / (feedName + kKeptEnding), kMaxReplyLength);
        if (!bytes) continue;
        const ForecastReading reading = ReadForecast(Widen(*bytes));
        if (reading.forecast && reading.forecast->placeFeedName == Widen(feedName)) {
            m_shelf.Restore(*reading.forecast);
        } else {
            m_log("keep: the forecast of " + feedName + " is damaged");
        }
    }
}

void CWeatherSource::WakeLate() {
    std::unique_lock lock(m_mutex);
    while (!m_stop) {
        const auto first = std::ranges::min_element(m_waiting, {}, &Waiting::until);
        if (first == m_waiting.end()) {
            m_newWaiting.wait(lock);
            continue;
        }
        // A copy: the list may change during the wait.
        const auto until = first->until;
        m_newWaiting.wait_until(lock, until);
        const auto now = std::chrono::steady_clock::now();
        const std::vector<Waiting> late = TakeWaiting([&](const Waiting& each) { return each.until <= now; });
        lock.unlock();
        for (const Waiting& each : late)
            each.wake();
        lock.lock();
    }
}

std::vector<CWeatherSource::Waiting> CWeatherSource::TakeWaiting(const std::function<bool(const Waiting&)>& which) {
    const auto stay = std::partition(m_waiting.begin(), m_waiting.end(), [&](const Waiting& w) { return !which(w); });
    std::vector<Waiting> taken(std::make_move_iterator(stay), std::make_move_iterator(m_waiting.end()));
    m_waiting.erase(stay, m_waiting.end());
    return taken;
}

bool CWeatherSource::Check() {
    if (m_config.kind == WeatherKind::kNone) return true;
    if (m_cities.empty()) return false;
    if (m_config.kind == WeatherKind::kSample) return true;
    const bool good = m_config.kind == WeatherKind::kFolder ? CheckFolder() : CheckCity(m_cities.begin()->second);
    if (!good && m_config.sample) m_log("weather: the sample stands in");
    return good || m_config.sample;
}

bool CWeatherSource::CheckCity(const ForecastCity& city) {
    const FetchedForecast fetched = FetchForecast(m_config, city, m_reader, m_stop, Now());
    if (!fetched.forecast) m_log("weather: " + ForecastAddress(m_config, city) + ": " + fetched.fault);
    return fetched.forecast.has_value();
}

bool CWeatherSource::CheckFolder() {
    std::size_t good = 0;
    bool all = true;
    for (const std::string& name : m_files.ListFiles(m_config.from)) {
        if (!name.ends_with(".json")) continue;
        const auto city = m_cities.find(name.substr(0, name.size() - 5));
        if (city == m_cities.end()) m_log("weather: " + name + " is of no city");
        const bool usable = city != m_cities.end() && CheckCity(city->second);
        good += usable ? 1 : 0;
        all = all && usable;
    }
    if (good == 0) m_log("weather: no forecast in " + m_config.from);
    return all && good > 0;
}

std::string CWeatherSource::Health() const {
    if (m_config.kind == WeatherKind::kNone) return "weather none";
    if (m_config.kind == WeatherKind::kSample)
        return "weather sample of " + std::to_string(m_cities.size()) + " cities";
    const std::lock_guard lock(m_mutex);
    const CWeatherShelf::Summary summary = m_shelf.Count();
    std::string line =
        "weather " + std::to_string(summary.forecasts) + " of " + std::to_string(m_cities.size()) + " cities";
    if (summary.newest) line += ", newest " + Narrow(FormatFeedInstant(*summary.newest));
    return line + (m_config.sample ? ", else a sample" : "");
}

}  // namespace rlx
