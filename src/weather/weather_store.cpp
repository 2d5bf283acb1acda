#include "weather/weather_store.h"

#include <map>

#include "base/text.h"
#include "weather/feed_fields.h"

namespace rlx {
namespace {

/// An issue time further ahead than this is an error of somebody's clock and shuts nothing newer out.
constexpr std::int64_t kFutureLimit = 3600;

Record EmptyRecord(const WeatherPlace& place) {
    return {{PROP_WEATHER_PLACE, place.place},
            {PROP_WEATHER_FEED, place.feedName},
            {PROP_WEATHER_DATES, {}},
            {PROP_WEATHER_REPLY, {}}};
}

Record WithFeedName(const Record& record, std::u16string feedName) {
    return {{PROP_WEATHER_PLACE, PropertyText(record, PROP_WEATHER_PLACE)},
            {PROP_WEATHER_FEED, std::move(feedName)},
            {PROP_WEATHER_DATES, PropertyText(record, PROP_WEATHER_DATES)},
            {PROP_WEATHER_REPLY, PropertyText(record, PROP_WEATHER_REPLY)}};
}

}  // namespace

CWeatherStore::CWeatherStore(IObjectStore& objects, IFileSystem& files, std::filesystem::path listFile)
    : m_objects(objects), m_files(files), m_listFile(std::move(listFile)) {}

IRecordDatabase* CWeatherStore::Database() {
    if (!m_database) m_database = m_objects.Open(kWeatherDatabase);
    return m_database.get();
}

std::vector<WeatherPlace> CWeatherStore::ListedPlaces() {
    const auto stream = m_files.OpenRead(m_listFile);
    return stream ? ReadWeatherPlaces(*stream) : std::vector<WeatherPlace>();
}

WeatherStoreState CWeatherStore::EnsureCreated() {
    if (Database() && Database()->Count() > 0) return WeatherStoreState::kReady;
    const auto places = ListedPlaces();
    if (!m_objects.Transact([&] { return Fill(places); })) return WeatherStoreState::kRefused;
    return places.empty() ? WeatherStoreState::kListMissing : WeatherStoreState::kReady;
}

bool CWeatherStore::Fill(const std::vector<WeatherPlace>& places) {
    m_database.reset();
    const bool made = m_objects.Create(kWeatherDatabase, kWeatherDatabaseType,
                                       {PROP_WEATHER_PLACE, PROP_WEATHER_FEED, PROP_WEATHER_DATES, PROP_WEATHER_REPLY});
    if (!made || !Database()) return false;
    // Another process may have been quicker.
    if (Database()->Count() > 0) return true;
    for (const auto& place : places)
        if (!Database()->Add(EmptyRecord(place))) return false;
    return true;
}

WeatherStoreState CWeatherStore::Rebuild() {
    const auto state = EnsureCreated();
    if (state != WeatherStoreState::kReady) return state;
    const auto places = ListedPlaces();
    if (places.empty()) return WeatherStoreState::kListMissing;
    return m_objects.Transact([&] { return Merge(places); }) ? WeatherStoreState::kReady : WeatherStoreState::kRefused;
}

bool CWeatherStore::Merge(const std::vector<WeatherPlace>& places) {
    std::map<std::u16string, RecordId> known;
    for (std::size_t i = 0; const auto id = Database()->SeekPosition(PROP_WEATHER_PLACE, i); ++i)
        if (const auto record = Database()->Read(*id)) known.emplace(PropertyText(*record, PROP_WEATHER_PLACE), *id);
    for (const auto& place : places) {
        const auto found = known.extract(place.place);
        if (!found) {
            if (!Database()->Add(EmptyRecord(place))) return false;
            continue;
        }
        const auto record = Database()->Read(found.mapped());
        const bool renamed = record && PropertyText(*record, PROP_WEATHER_FEED) != place.feedName;
        if (renamed && !Database()->Overwrite(found.mapped(), WithFeedName(*record, place.feedName))) return false;
    }
    for (const auto& [place, id] : known) {
        const auto record = Database()->Read(id);
        if (record && PropertyText(*record, PROP_WEATHER_REPLY).empty() && !Database()->Delete(id)) return false;
    }
    return true;
}

std::optional<Record> CWeatherStore::RecordOf(std::u16string_view place) {
    if (!Database()) return {};
    const auto id = Database()->SeekValue(PROP_WEATHER_PLACE, place);
    return id ? Database()->Read(*id) : std::nullopt;
}

std::u16string CWeatherStore::FeedName(std::u16string_view place) {
    const auto record = RecordOf(place);
    auto name = record ? PropertyText(*record, PROP_WEATHER_FEED) : u"";
    return name.empty() ? FallbackFeedName(place) : name;
}

std::optional<StoredForecast> CWeatherStore::Find(std::u16string_view place) {
    const auto record = RecordOf(place);
    if (!record) return {};
    const auto fetched = ParseFeedInstant(Split(PropertyText(*record, PROP_WEATHER_DATES), u';').front());
    auto reading = ReadForecast(PropertyText(*record, PROP_WEATHER_REPLY));
    if (!fetched || !reading.forecast) return {};
    return StoredForecast{*fetched, std::move(*reading.forecast)};
}

SaveResult CWeatherStore::Save(std::u16string_view place, std::u16string_view reply, const DateTime& utcNow) {
    const auto reading = ReadForecast(reply);
    if (reading.fault == ReplyFault::kNoValues) return {SaveOutcome::kNothing, reading.fault};
    if (!reading.forecast) return {SaveOutcome::kBroken, reading.fault};
    const auto& forecast = *reading.forecast;
    const auto feedName = FeedName(place);
    if (forecast.placeFeedName != FeedText(feedName)) return {SaveOutcome::kOtherPlace};
    const Record record{{PROP_WEATHER_PLACE, std::u16string(place)},
                        {PROP_WEATHER_FEED, feedName},
                        {PROP_WEATHER_DATES, FormatFeedInstant(utcNow) + u";" + FormatFeedInstant(forecast.issued) +
                                                 u";" + forecast.source},
                        {PROP_WEATHER_REPLY, std::u16string(reply)}};
    auto outcome = SaveOutcome::kSaved;
    const bool written = m_objects.Transact([&] {
        if (MayReplace(place, forecast, utcNow)) return Write(place, record);
        outcome = SaveOutcome::kOlder;
        return true;
    });
    return {written ? outcome : SaveOutcome::kRefused};
}

bool CWeatherStore::MayReplace(std::u16string_view place, const Forecast& forecast, const DateTime& utcNow) {
    const auto stored = Find(place);
    if (!stored) return true;
    const auto storedIssue = SecondNumber(stored->forecast.issued);
    return storedIssue <= SecondNumber(forecast.issued) || storedIssue > SecondNumber(utcNow) + kFutureLimit;
}

bool CWeatherStore::Write(std::u16string_view place, const Record& record) {
    if (!Database()) return false;
    const auto id = Database()->SeekValue(PROP_WEATHER_PLACE, place);
    return id ? Database()->Overwrite(*id, record) : Database()->Add(record).has_value();
}

}  // namespace rlx
