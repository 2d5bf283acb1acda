#include <memory>

#include "base/number.h"
#include "base/text.h"
#include "cli/commands.h"
#include "places/city_info.h"
#include "places/city_list_messages.h"
#include "places/city_search.h"
#include "platform/posix/time_zones_module.h"
#include "shell/program_paths.h"
#include "shell/text_ids.h"

namespace rlx::cli {

namespace {

int Show(CSession& session, CAnswer& answer, const std::string& word) {
    const auto city = FindCity(session, word);
    if (!city) return kFailed;
    CCityDatabase& cities = session.Cities();
    const CitySunDetails details = SunDetailsOf(cities, session.Times(), session.Texts(), *city, session.Clock().Now());
    const std::u16string info = CityInfoText(details, session.Texts());
    answer.Set("cityIndex", *city);
    answer.Set("place", ToJson(cities.GetPlace(*city)));
    answer.Set("name", ToJson(cities.GetName(*city)));
    answer.Set("country", ToJson(cities.GetCountry(*city)));
    answer.Set("longitude", ToJson(cities.GetLongitude(*city)));
    answer.Set("latitude", ToJson(cities.GetLatitude(*city)));
    answer.Set("gmt", ToJson(cities.GetGmt(*city)));
    answer.Set("dstRule", ToJson(cities.GetDstRule(*city)));
    answer.Set("info", ToJson(info));
    answer.Line(info);
    return kDone;
}

int List(CSession& session, CAnswer& answer) {
    CCityDatabase& cities = session.Cities();
    Json places = Json::array();
    const std::size_t count = cities.Count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::u16string place = cities.GetPlace(i);
        places.push_back(ToJson(place));
        answer.Line(place);
    }
    answer.Set("cities", std::move(places));
    return kDone;
}

int Find(CSession& session, CAnswer& answer, const std::string& text) {
    CCityDatabase& cities = session.Cities();
    Json found = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (const std::uint32_t city : CCitySearch(cities).FindByBeginning(FromUtf8(text))) {
        found.push_back({{"cityIndex", city}, {"place", ToJson(cities.GetPlace(city))}});
        rows.push_back({FormatInteger(city), cities.GetPlace(city)});
    }
    answer.Set("cities", std::move(found));
    answer.Table(rows);
    return kDone;
}

/// `year` 0 stands for the year of the device's clock.
int Refresh(CSession& session, CAnswer& answer, int year) {
    const Date today = session.Clock().Now().date;
    if (year == 0) year = today.year;
    if (!session.KeepsChanges()) return session.Fail(session.Text(kTextFileNotSaved, u"rlxCities"));
    CTimeZonesModule zones(ProgramFolders({}).executableFolder);
    const RulesRefresh refresh =
        RefreshRules(session.CityLists(), zones, session.Files(), session.Folder().Root(), RulesDay(year, today));
    if (!ReportRefresh(refresh, session.Boxes(), session.Texts())) return kFailed;
    answer.Set("count", refresh.changed);
    answer.Set("year", year);
    answer.Line(RefreshText(refresh, year, session.Texts()));
    return kDone;
}

int Rebuild(CSession& session, CAnswer& answer) {
    CCityDatabase& cities = session.CitiesAsTheyAre();
    const CityListState state = cities.Rebuild();
    const bool lost = state == CityListState::kReady && !session.KeepsChanges();
    if (state == CityListState::kNotWritten || lost) return session.Fail(session.Text(kTextFileNotSaved, u"rlxCities"));
    if (state != CityListState::kReady) return kFailed;
    answer.Set("count", cities.Count());
    answer.Line(std::to_string(cities.Count()));
    return kDone;
}

}  // namespace

void DeclareCity(CLI::App& app, const SetAction& setAction) {
    app.require_subcommand(1);
    auto word = std::make_shared<std::string>();
    CLI::App* show = DeclareSub(app, "show", "one city and its daylight saving", setAction,
                                [word](CSession& s, CAnswer& a) { return Show(s, a, *word); });
    show->add_option("CITY", *word, "index or beginning of a name")->required();
    DeclareSub(app, "list", "all places in index order", setAction, List);
    CLI::App* find = DeclareSub(app, "find", "cities whose name begins with TEXT", setAction,
                                [word](CSession& s, CAnswer& a) { return Find(s, a, *word); });
    find->add_option("TEXT", *word, "beginning of a name")->required();
    auto year = std::make_shared<int>(0);
    CLI::App* refresh = DeclareSub(app, "refresh", "the daylight-saving rules of a year for all cities", setAction,
                                   [year](CSession& s, CAnswer& a) { return Refresh(s, a, *year); });
    AddInteger(
        *refresh, "--year", {kFirstRulesYear, kLastRulesYear},
        [year](std::int64_t value) { *year = static_cast<int>(value); }, "another year than that of the device's clock")
        ->type_name("YEAR");
    DeclareSub(app, "rebuild", "build the cities database anew from \"cities.lst\"", setAction, Rebuild);
}

}  // namespace rlx::cli
