#include "base/text.h"
#include "cli/commands.h"

namespace rlx::cli {

namespace {

std::string SlotName(int slot) {
    return slot == kHomeSlot ? "home" : std::to_string(slot);
}

Json ToJson(const ClockReading& clock) {
    return {{"slot", SlotName(clock.slot)},
            {"cityIndex", clock.cityIndex},
            {"name", ToUtf8(clock.name)},
            {"country", ToUtf8(clock.country)},
            {"gmt", clock.gmt},
            {"effectiveGmt", clock.effectiveGmt},
            {"dst", clock.dst},
            {"time", ToUtf8(clock.timeText)},
            {"date", ToUtf8(clock.dateText)}};
}

int Show(CSession& session, CAnswer& answer) {
    CCityTimes& times = session.Times();
    const DateTime now = session.Clock().Now();
    const ClockOffset reference = times.Reference(now);
    answer.Set("syncltz", session.ClockChoices().syncZone);
    answer.Set("reference", {{"hours", reference.hours}, {"minutes", reference.minutes}});
    Json clocks = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (const ClockReading& clock : times.AllClocks(now)) {
        clocks.push_back(ToJson(clock));
        rows.push_back(
            {FromUtf8(SlotName(clock.slot)), clock.name, clock.country, clock.timeText, Trim(clock.dateText)});
    }
    answer.Set("clocks", std::move(clocks));
    answer.Table(rows);
    return kDone;
}

}  // namespace

void DeclareClocks(CLI::App& app, const SetAction& setAction) {
    app.callback([setAction] { setAction(Show); });
}

}  // namespace rlx::cli
