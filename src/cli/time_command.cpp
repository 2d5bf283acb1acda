#include <memory>

#include "base/text.h"
#include "cli/commands.h"

namespace rlx::cli {

namespace {

int Show(CSession& session, CAnswer& answer, const std::string& word) {
    const auto city = FindCity(session, word);
    if (!city) return kFailed;
    const DateTime now = session.Clock().Now();
    const ClockReading clock = session.Times().WorldClock(*city, now);
    const ClockOffset reference = session.Times().Reference(now);
    answer.Set("time", ToJson(clock.timeText));
    answer.Set("date", ToJson(clock.dateText));
    answer.Set("dateLong", ToJson(clock.longDateText));
    answer.Set("day", clock.day);
    answer.Set("month", clock.month);
    answer.Set("year", clock.year);
    answer.Set("effectiveGmt", clock.effectiveGmt);
    answer.Set("dst", clock.dst);
    answer.Set("reference", {{"hours", reference.hours}, {"minutes", reference.minutes}});
    answer.Line(clock.timeText + u"  " + clock.longDateText);
    return kDone;
}

}  // namespace

void DeclareTime(CLI::App& app, const SetAction& setAction) {
    auto word = std::make_shared<std::string>();
    app.add_option("CITY", *word, "index or beginning of a name")->required();
    app.callback([setAction, word] { setAction([word](CSession& s, CAnswer& a) { return Show(s, a, *word); }); });
}

}  // namespace rlx::cli
