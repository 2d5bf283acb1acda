#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/object_store.h"
#include "weather/forecast_reader.h"
#include "weather/weather_places.h"

namespace rlx {

inline constexpr char16_t kWeatherDatabase[] = u"rlxWeather";
inline constexpr std::uint32_t kWeatherDatabaseType = 54321;

inline constexpr PropertyId PROP_WEATHER_PLACE = 201;
inline constexpr PropertyId PROP_WEATHER_FEED = 202;
inline constexpr PropertyId PROP_WEATHER_DATES = 203;
inline constexpr PropertyId PROP_WEATHER_REPLY = 204;

/// A forecast with the instant at which it came.
struct StoredForecast {
    DateTime fetched;  ///< in UTC, to the minute
    Forecast forecast;
};

enum class WeatherStoreState {
    kReady,
    kListMissing,  ///< no "cities.wet", or nothing in it: the database is empty, the next call tries again
    kRefused,      ///< the device refused; nothing was changed
};

/// What became of a reply.
enum class SaveOutcome {
    kSaved,
    kBroken,      ///< no forecast in it
    kNothing,     ///< a reply that is sound but tells nothing: the server has no forecast
    kOtherPlace,  ///< the forecast of another place
    kOlder,       ///< issued before the one that is there
    kRefused,     ///< the device refused the write
};

struct SaveResult {
    SaveOutcome outcome = SaveOutcome::kRefused;
    ReplyFault fault = ReplyFault::kNone;  ///< for `kBroken` and `kNothing`
};

/// The record database "rlxWeather" (docs/formats/cities-wet.md): the last good forecast of each place. Only a sound
/// forecast of the right place that is not older ever replaces one. Used from one thread; owns neither port.
class CWeatherStore {
public:
    /// `listFile` is the host's path of "cities.wet".
    CWeatherStore(IObjectStore& objects, IFileSystem& files, std::filesystem::path listFile);

    /// Makes the database and fills it from the list when it is missing or empty, in one step.
    WeatherStoreState EnsureCreated();

    /// Brings the database in line with the list again, in one step: feed names are renewed, new places come in, and
    /// places that the list has lost go, unless they have a forecast.
    WeatherStoreState Rebuild();

    /// The feed name of a place ("Paris:France"); for a place that the database lacks its `FallbackFeedName`.
    std::u16string FeedName(std::u16string_view place);

    /// Nothing when there is none, or when what is there does not stand up to the checks of a fresh reply.
    std::optional<StoredForecast> Find(std::u16string_view place);

    /// Keeps a reply to the request for `place`; a place that the database lacks gets a record. `utcNow` is the instant
    /// in UTC.
    SaveResult Save(std::u16string_view place, std::u16string_view reply, const DateTime& utcNow);

private:
    IRecordDatabase* Database();
    std::optional<Record> RecordOf(std::u16string_view place);
    std::vector<WeatherPlace> ListedPlaces();
    bool Fill(const std::vector<WeatherPlace>& places);
    bool Merge(const std::vector<WeatherPlace>& places);
    bool MayReplace(std::u16string_view place, const Forecast& forecast, const DateTime& utcNow);
    bool Write(std::u16string_view place, const Record& record);

    IObjectStore& m_objects;
    IFileSystem& m_files;
    std::filesystem::path m_listFile;
    std::unique_ptr<IRecordDatabase> m_database;
};

}  // namespace rlx
