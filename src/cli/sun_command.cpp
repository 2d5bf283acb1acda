#include <memory>

#include "astro/rise_set.h"
#include "cli/commands.h"
#include "map/city_sun.h"
#include "map/text_ids.h"
#include "shell/text_ids.h"

namespace rlx::cli {

namespace {

struct SunWords {
    std::string city;
    std::optional<Date> date;
};

int Show(CSession& session, CAnswer& answer, const SunWords& words) {
    const auto index = FindCity(session, words.city);
    if (!index) return kFailed;
    const CityRecord city = session.Cities().Record(*index).value_or(CityRecord());
    const CitySun day =
        words.date ? CitySunOn(city, *words.date) : CitySunToday(city, session.Times(), session.Clock().Now());
    const RiseSet& sun = day.sun;
    const std::u16string sunrise = FormatHours(sun.sunriseHours);
    const std::u16string sunset = FormatHours(sun.sunsetHours);
    const std::u16string dayLength = FormatHours(sun.dayLengthHours);
    answer.Set("sunrise", ToJson(sunrise));
    answer.Set("sunset", ToJson(sunset));
    answer.Set("dayLength", ToJson(dayLength));
    answer.Set("sunriseHours", ToJson(sun.sunriseHours));
    answer.Set("sunsetHours", ToJson(sun.sunsetHours));
    answer.Set("dayLengthHours", ToJson(sun.dayLengthHours));
    answer.Set("zone", ZoneHours(day.effectiveGmt));
    answer.Line(city.name + u", " + CityDateText(day.date, true, session.Texts()));
    const std::u16string note = SunNote(sun.kind, session.Texts());
    if (!note.empty()) answer.Line(note);
    if (sun.kind == DayKind::kPolarNight) return kDone;
    answer.Table({{session.Text(kTextSunrise), sunrise},
                  {session.Text(kTextSunset), sunset},
                  {session.Text(kTextDayLength), dayLength}});
    return kDone;
}

}  // namespace

void DeclareSun(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<SunWords>();
    app.add_option("CITY", words->city, "index or beginning of a name")->required();
    app.add_option_function<std::string>(
           "--date",
           [words](const std::string& text) {
               words->date = ParseDate(text);
               if (!words->date) throw CLI::ValidationError("--date", "\"" + text + "\" is not a date YYYY-MM-DD");
           },
           "another day than the city's today")
        ->type_name("DATE");
    app.callback([setAction, words] { setAction([words](CSession& s, CAnswer& a) { return Show(s, a, *words); }); });
}

}  // namespace rlx::cli
