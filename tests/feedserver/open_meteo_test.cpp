#include "feedserver/open_meteo.h"

#include "base/text.h"
#include "feedserver/weather_texts.h"
#include "weather/forecast_writer.h"

namespace rlx::test {
namespace {

std::string Daily(const std::string& members, const std::string& units = R"("temperature_2m_max":"°C")") {
    return R"({"daily_units":{)" + units + R"(},"daily":{)" + members + "}}";
}

constexpr char kTwoDays[] = R"("time":["2026-11-22","2026-11-23"])";

TEST(OpenMeteo, ReadsWhatIsThere) {
    const struct {
        const char* name;
        std::string json;
        std::string days;  ///< as the feed tells them, without the frame
    } rows[] = {
        {"all of it", OpenMeteoReply(),
         "2026-11-22_3;9.1;4.0;0.0;10;14.5;230;81;08:14;17:01#\n"
         "2026-11-23_61;10.6;6.3;4.2;75;22.0;250;88;08:16;17:00#\n"
         "2026-11-24_95;;5.5;;;31.3;;;08:17;16:59#\n"},
        {"the older spelling", Daily(kTwoDays + std::string(R"(,"weathercode":[3,null])")),
         "2026-11-22_3;;;;;;;;;#\n2026-11-23_;;;;;;;;;#\n"},
        {"a sun that does not rise",
         Daily(kTwoDays + std::string(R"(,"weather_code":[1,2],"sunrise":["1970-01-01T00:00","2026-11-23T09:00"],)"
                                      R"("sunset":["1970-01-01T00:00","2026-11-24T00:10"])")),
         "2026-11-22_1;;;;;;;;;#\n2026-11-23_2;;;;;;;;09:00;00:10#\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ParsedOpenMeteo parsed = ParseOpenMeteo(row.json);
        EXPECT_EQ(parsed.fault, "");
        ASSERT_TRUE(parsed.forecast);
        const std::string written = WriteForecast(*parsed.forecast);
        const std::size_t begin = written.find("Z#\n") + 3;
        EXPECT_EQ(written.substr(begin, written.find("end_") - begin), row.days);
    }
}

TEST(OpenMeteo, NamesWhatIsWrong) {
    const auto with = [](const std::string& more) { return Daily(kTwoDays + ("," + more)); };
    std::string many = R"("time":[)";
    for (int i = 0; i < 20'000; ++i)
        many += R"("2026-11-22",)";
    const std::pair<std::string, std::string> rows[] = {
        {"", "not a JSON object"},
        {OpenMeteoReply().substr(0, 600), "not a JSON object"},
        {std::string(100'000, '['), "not a JSON object"},
        {R"({"daily":{"time":["2026-11-22"]},"x":")"
         "\xFF\"}",
         "not a JSON object"},
        {R"({"error":true,"reason":"Daily API request limit exceeded.\n"})",
         "refused: Daily API request limit exceeded.?"},
        {Daily(R"("time":[])"), "no days in daily.time"},
        {Daily(R"("time":["2026-11-31"])"), "daily.time holds a value that is no date"},
        {Daily(R"("time":["2026-11-22","2026-11-22"])"), "the days do not follow each other"},
        {Daily(many + R"("2026-11-22"])"), "more than 16 days"},
        {with(R"("temperature_2m_max":[1])"), "temperature_2m_max does not have one value for each day"},
        {with(R"("sunset":[1,2])"), "sunset holds a value that is no time"},
        {with(R"("temperature_2m_min":[1,2])"), "no unit of temperature_2m_min"},
        {Daily(kTwoDays + std::string(R"(,"temperature_2m_max":[50,60])"), R"("temperature_2m_max":"°F")"),
         "the unit of temperature_2m_max is ??F, not ??C"},
        {with(R"("weather_code":[null,null])"), "no weather code and no temperature"},
    };
    for (const auto& [json, fault] : rows) {
        const ParsedOpenMeteo parsed = ParseOpenMeteo(json);
        EXPECT_EQ(parsed.fault, fault) << json.substr(0, 200);
        EXPECT_FALSE(parsed.forecast) << json.substr(0, 200);
    }
}

}  // namespace
}  // namespace rlx::test
