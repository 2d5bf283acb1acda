#include <memory>
#include <optional>

#include "base/iso_day.h"
#include "base/text.h"
#include "cli/commands.h"
#include "cli/text_ids.h"
#include "currency/text_ids.h"
#include "feeds/currency_database.h"
#include "feeds/rates_origin.h"
#include "places/city_times.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "today/today_summary.h"

namespace rlx::cli {

namespace {

struct TodayChange {
    std::optional<int> cities;
    std::optional<bool> rates;
};

Json ToJson(const ClockReading& clock) {
    return {{"cityIndex", clock.cityIndex},         {"name", ToUtf8(clock.name)},
            {"country", ToUtf8(clock.country)},     {"time", ToUtf8(clock.timeText)},
            {"date", ToUtf8(Trim(clock.dateText))}, {"dst", clock.dst}};
}

Json ToJson(const TodayRate& rate) {
    return {{"from", ToUtf8(rate.from)},
            {"to", ToUtf8(rate.to)},
            {"rate", rate.text.empty() ? Json() : Json(ToUtf8(rate.text))}};
}

/// Words for a status bar: cities, then rates and their day.
struct Summary {
    std::u16string line;
    Json cities = Json::array();
    Json rates = Json::array();

    void Add(const std::u16string& word) {
        if (!line.empty()) line += u" | ";
        line += word;
    }
};

void AddRates(CSession& session, CAnswer& answer, Summary& summary, const TodayOptions& options) {
    const CurrencyList shipped = LoadRatesList(session.Files(), session.Folder().Root());
    CCurrencyDatabase database(session.ObjectStore());
    const CurrencyList currencies = database.EnsureCreated(shipped) ? database.All() : shipped;
    CConverterPairs pairs(session.Registry());
    for (const TodayRate& rate : TodayRates(pairs, currencies, options)) {
        summary.rates.push_back(ToJson(rate));
        summary.Add(TodayText(rate));
    }
    const RatesOrigin origin =
        OriginOfRates(session.Registry(), ShippedRatesDate(session.Files(), session.Folder().Root()));
    const std::u16string date = origin.date ? ShownDay(*origin.date) : std::u16string();
    answer.Set("updated", ToUtf8(date));
    const bool stale = AreRatesStale(origin.date, session.Clock().Now().date);
    answer.Set("stale", stale);
    if (summary.rates.empty()) return;
    std::u16string day = session.Text(kTextRatesOf, date.empty() ? session.Text(kTextUnknown) : date);
    if (stale) day += u", " + session.Text(kTextStale);
    summary.Add(day);
}

int ShowSummary(CSession& session, CAnswer& answer) {
    const TodayOptions options = ReadTodayOptions(session.Settings());
    Summary summary;
    const auto clocks = TodayClocks(session.Times(), session.Clock().Now(), options);
    for (const ClockReading& clock : clocks) {
        summary.cities.push_back(ToJson(clock));
        summary.Add(TodayText(clock, clocks.front()));
    }
    if (options.rates) AddRates(session, answer, summary, options);
    answer.Set("cities", std::move(summary.cities));
    answer.Set("rates", std::move(summary.rates));
    answer.Line(summary.line);
    return kDone;
}

/// Opens and closes the options as the dialog does: whatever they are, they are written.
int ShowOptions(CSession& session, CAnswer& answer, const TodayChange& change) {
    TodayOptions options = ReadTodayOptions(session.Settings());
    options.cities = change.cities.value_or(options.cities);
    options.rates = change.rates.value_or(options.rates);
    if (!WriteTodayOptions(session.Settings(), options) || !session.KeepsChanges()) {
        return session.Fail(session.Text(kTextSettingNotWritten, std::u16string(keys::kRoamlytix),
                                         std::u16string(names::kTodayCities)));
    }
    answer.Set("cities", options.cities);
    answer.Set("rates", options.rates ? 1 : 0);
    answer.Table(
        {{u"todaynbcs", FromUtf8(std::to_string(options.cities))}, {u"todayscur", options.rates ? u"1" : u"0"}});
    return kDone;
}

}  // namespace

void DeclareToday(CLI::App& app, const SetAction& setAction) {
    app.require_subcommand(0, 1);
    app.callback([setAction, &app] {
        if (app.get_subcommands().empty()) setAction(ShowSummary);
    });
    auto change = std::make_shared<TodayChange>();
    CLI::App* options = DeclareSub(app, "options", "what the summary shows", setAction,
                                   [change](CSession& s, CAnswer& a) { return ShowOptions(s, a, *change); });
    AddInteger(
        *options, "--cities", {1, kMostTodayCities},
        [change](std::int64_t count) { change->cities = static_cast<int>(count); }, "number of cities, 1 to 5");
    options
        ->add_option_function<std::string>(
            "--rates", [change](const std::string& word) { change->rates = word == "on"; }, "on or off")
        ->type_name("on|off")
        ->check(CLI::IsMember({"on", "off"}).description(""));
}

}  // namespace rlx::cli
