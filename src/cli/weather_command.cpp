#include <algorithm>
#include <memory>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/weather_fetch.h"
#include "shell/text_ids.h"
#include "weather/feed_fields.h"
#include "weather/place_forecast.h"
#include "weather/text_ids.h"
#include "weather/weather_code.h"
#include "weather/weather_settings.h"
#include "weather/weather_text.h"

namespace rlx::cli {

namespace {

/// What both commands need.
struct Weather {
    explicit Weather(CSession& session)
        : store(session.ObjectStore(), session.Files(),
                session.Folder().Path(u"\\cities.wet").value_or(session.Folder().Root() / "cities.wet")),
          forecasts(session.Cities(), session.Times(), store) {}

    CWeatherStore store;
    CPlaceForecasts forecasts;
};

template <typename Value>
Json NumberOrNull(const std::optional<Value>& value) {
    return value ? Json(*value) : Json();
}

Json TextOrNull(const std::optional<TimeOfDay>& time) {
    return time ? ToJson(FormatFeedTime(*time)) : Json();
}

Json DayJson(const ForecastDay& day, const CWeatherTexts& texts) {
    const bool known = ConditionOf(day.code).code >= 0;
    return {{"date", ToJson(FormatFeedDate(day.date))},
            {"code", NumberOrNull(day.code)},
            {"condition", known ? ToJson(texts.Condition(day)) : Json()},
            {"high", NumberOrNull(day.high)},
            {"low", NumberOrNull(day.low)},
            {"precipitation", NumberOrNull(day.precipitation)},
            {"probability", NumberOrNull(day.probability)},
            {"windSpeed", NumberOrNull(day.windSpeed)},
            {"windDirection", NumberOrNull(day.windDirection)},
            {"humidity", NumberOrNull(day.humidity)},
            {"sunrise", TextOrNull(day.sunrise)},
            {"sunset", TextOrNull(day.sunset)}};
}

Json PlaceJson(const PlaceForecast& place, CWeatherStore& store, const CWeatherTexts& texts) {
    Json days = Json::array();
    const auto& stored = place.stored;
    if (stored) {
        for (const auto& day : stored->forecast.days)
            days.push_back(DayJson(day, texts));
    }
    return {{"cityIndex", place.cityIndex},
            {"place", ToJson(place.place)},
            {"feedName", ToJson(store.FeedName(place.place))},
            {"fetched", stored ? ToJson(FormatFeedInstant(stored->fetched)) : Json()},
            {"issued", stored ? ToJson(FormatFeedInstant(stored->forecast.issued)) : Json()},
            {"source", stored ? ToJson(stored->forecast.source) : Json()},
            {"stale", stored ? Json(place.freshness.stale) : Json()},
            {"days", std::move(days)}};
}

void Tell(const PlaceForecast& place, const CSession& session, const CWeatherTexts& texts, CAnswer& answer) {
    if (!place.stored) {
        answer.Line(place.name + u": " + session.Text(kTextNotAvailable));
        return;
    }
    const auto& forecast = place.stored->forecast;
    answer.Line(place.name + u": " + texts.Issued(forecast) + u", " + texts.Source(forecast) +
                (place.freshness.stale ? u", " + session.Text(kTextStale) : u""));
    std::vector<std::vector<std::u16string>> rows;
    for (const auto& day : place.DaysToShow()) {
        rows.push_back({texts.DateAndWeekday(day.date), texts.Temperature(day.high), texts.Temperature(day.low),
                        texts.Precipitation(day.precipitation), texts.PerCent(day.probability), texts.Wind(day),
                        texts.Condition(day)});
    }
    answer.Table(rows);
}

/// The city of the word, else the four places that the user chose, each once. Nothing when no city fits the word.
std::optional<std::vector<CityIndex>> Chosen(CSession& session, const std::string& word) {
    if (!word.empty()) {
        const auto city = FindCity(session, word);
        return city ? std::optional(std::vector{*city}) : std::nullopt;
    }
    std::vector<CityIndex> chosen;
    for (const auto city : CWeatherSettings(session.Settings()).LoadPlaces())
        if (std::ranges::find(chosen, city) == chosen.end()) chosen.push_back(city);
    return chosen;
}

void Answer(CSession& session, Weather& weather, const std::vector<CityIndex>& cities, CAnswer& answer) {
    const CWeatherTexts texts(session.Texts(), CWeatherSettings(session.Settings()).Unit());
    Json places = Json::array();
    for (const auto city : cities) {
        const auto place = weather.forecasts.Of(city);
        places.push_back(PlaceJson(place, weather.store, texts));
        Tell(place, session, texts, answer);
    }
    answer.Set("places", std::move(places));
}

int Show(CSession& session, CAnswer& answer, const std::string& word) {
    const auto cities = Chosen(session, word);
    if (!cities) return kFailed;
    Weather weather(session);
    // Feed names stand in the list; without it each city goes by its own name.
    weather.store.EnsureCreated();
    Answer(session, weather, *cities, answer);
    return kDone;
}

int Update(CSession& session, CAnswer& answer, const std::string& word) {
    auto cities = Chosen(session, word);
    if (!cities) return kFailed;
    std::erase_if(*cities, [&](CityIndex city) { return city >= session.Cities().Count(); });
    Weather weather(session);
    const auto state = weather.store.EnsureCreated();
    if (state == WeatherStoreState::kRefused) return session.Fail(session.Text(kTextFileNotSaved, kWeatherDatabase));
    if (state == WeatherStoreState::kListMissing) session.Fail(session.Text(kTextWeatherListMissing));
    const auto results = FetchWeather(session, weather.store, weather.forecasts, *cities);
    Answer(session, weather, *cities, answer);
    const auto isGood = [](PlaceUpdate result) {
        return result == PlaceUpdate::kSaved || result == PlaceUpdate::kOlder;
    };
    if (!session.KeepsChanges()) return session.Fail(session.Text(kTextFileNotSaved, kWeatherDatabase));
    return std::ranges::all_of(results, isGood) ? kDone : kFailed;
}

}  // namespace

void DeclareWeather(CLI::App& app, const SetAction& setAction) {
    auto word = std::make_shared<std::string>();
    app.add_option("CITY", *word, "index or beginning of a name; without it the four places of the Weather screen");
    app.callback([&app, word, setAction] {
        if (!app.get_subcommands().empty()) return;
        setAction([word](CSession& s, CAnswer& a) { return Show(s, a, *word); });
    });
    CLI::App* update = DeclareSub(app, "update", "fetch new forecasts from the feed server", setAction,
                                  [word](CSession& s, CAnswer& a) { return Update(s, a, *word); });
    update->add_option("CITY", *word, "index or beginning of a name");
}

}  // namespace rlx::cli
