#include <memory>

#include "astro/sun_position.h"
#include "base/number.h"
#include "base/text.h"
#include "cli/commands.h"
#include "map/solar_instant.h"

namespace rlx::cli {

namespace {

constexpr int kDecimals = 6;

int Show(CSession& /*session*/, CAnswer& answer, const DateTime& universalTime) {
    const SolarInstant instant = SolarInstantAt(universalTime);
    std::vector<std::vector<std::u16string>> rows;
    const auto set = [&](const char* name, double value) {
        answer.Set(name, value);
        rows.push_back({Widen(name), FormatFixed(value, kDecimals)});
    };
    set("julianDay", instant.julianDay);
    set("centuries", CenturiesSinceJ2000(instant.julianDay));
    set("rightAscension", instant.rightAscension);
    set("declination", instant.declination);
    set("siderealTime", instant.siderealTime);
    answer.Table(rows);
    return kDone;
}

}  // namespace

void DeclareSky(CLI::App& app, const SetAction& setAction) {
    auto time = std::make_shared<DateTime>();
    AddInstant(
        app, "--ut", [time](const DateTime& given) { *time = given; }, "instant in Universal Time")
        ->required();
    app.callback([setAction, time] { setAction([time](CSession& s, CAnswer& a) { return Show(s, a, *time); }); });
}

}  // namespace rlx::cli
