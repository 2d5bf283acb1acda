#include "weather/forecast_reader.h"

#include <cmath>

#include "base/text.h"
#include "weather/forecast_writer.h"
#include "weather/replies.h"

namespace rlx {
namespace {

using test::kGoodReply;
using test::kReplyHead;
using test::OneDayReply;

TEST(ForecastReader, ReadsEveryField) {
    const auto forecast = ReadForecast(kGoodReply).forecast.value();
    EXPECT_EQ(forecast.source, u"Open-Meteo");
    EXPECT_EQ(forecast.placeFeedName, u"paris_france") << "an underscore in a value";
    EXPECT_EQ(forecast.issued, (DateTime{.date = {2026, 11, 22}, .hour = 18}));
    ASSERT_EQ(forecast.days.size(), 3U);
    const ForecastDay second{{2026, 11, 23}, 61, 10.6, 6.3, 4.2, 75, 22.0, 250, 88, TimeOfDay{8, 16}, TimeOfDay{17, 0}};
    EXPECT_EQ(forecast.days[1], second);
    ForecastDay third{.date = {2026, 11, 24}};
    third.code = 95;
    third.low = 5.5;
    third.windSpeed = 31.3;
    third.sunrise = TimeOfDay{8, 17};
    third.sunset = TimeOfDay{16, 59};
    EXPECT_EQ(forecast.days[2], third) << "empty fields are not zero";
}

TEST(ForecastReader, ReadsBackWhatIsWritten) {
    auto forecast = ReadForecast(kGoodReply).forecast.value();
    EXPECT_EQ(WriteForecast(forecast), Narrow(kGoodReply));
    forecast.source = u"Wetter # für\nalle" + std::u16string(200, u'x');
    forecast.days[0].high = 0.02;
    forecast.days[0].low = -0.04;
    const auto again = ReadForecast(Widen(WriteForecast(forecast))).forecast.value();
    EXPECT_EQ(again.source, u"Wetter ? f?r?alle" + std::u16string(103, u'x'));
    EXPECT_FALSE(std::signbit(again.days[0].low.value()));
    EXPECT_EQ(WriteForecast(forecast).find("-0.0"), std::string::npos);
}

TEST(ForecastReader, RefusesBrokenReplies) {
    const std::u16string day = u"_3;9.1;4.0;0.0;10;14.5;230;81;08:14;17:01#";
    std::u16string seventeen = kReplyHead;
    for (int i = 0; i < 17; ++i)
        seventeen += u"2026-11-" + std::u16string{char16_t(u'1' + i / 10), char16_t(u'0' + i % 10)} + day;
    const struct {
        const char* name;
        std::u16string reply;
        ReplyFault fault;
    } rows[] = {
        {"a page", u"<html><body>502 Bad_Gateway # nginx</body></html>", ReplyFault::kNotAForecast},
        {"a zero character", kReplyHead + std::u16string(1, u'\0'), ReplyFault::kNotAscii},
        {"a day that tells nothing", OneDayReply(u";;;1.0;50;;;;08:00;17:00"), ReplyFault::kNoValues},
        {"no source", u"weather_1#place_x#issued_2026-11-22T18:00Z#2026-11-22" + day + u"end_1#",
         ReplyFault::kBadHeader},
        {"an issue time that is none",
         u"weather_1#place_x#source_y#issued_2026-11-31T18:00Z#2026-11-22" + day + u"end_1#", ReplyFault::kBadHeader},
        {"something behind the end", kGoodReply + u"2026-11-25" + day, ReplyFault::kBadEntry},
        {"the same day twice", kReplyHead + u"2026-11-22" + day + u"2026-11-22" + day + u"end_2#",
         ReplyFault::kBadDate},
        {"seventeen days", seventeen + u"end_17#", ReplyFault::kTooManyDays},
        {"huge", kReplyHead + std::u16string(300'000, u'\n'), ReplyFault::kTooLong},
    };
    for (const auto& row : rows) {
        const auto reading = ReadForecast(row.reply);
        EXPECT_FALSE(reading.forecast) << row.name;
        EXPECT_EQ(static_cast<int>(reading.fault), static_cast<int>(row.fault)) << row.name;
    }
}

TEST(ForecastReader, RefusesEveryCutReply) {
    for (std::size_t length = 0; length + 1 < kGoodReply.size(); ++length)
        EXPECT_FALSE(ReadForecast(kGoodReply.substr(0, length)).forecast) << length;
    EXPECT_TRUE(ReadForecast(kGoodReply.substr(0, kGoodReply.size() - 1)).forecast) << "only the last line end is gone";
}

TEST(ForecastReader, TakesWhatLaterVersionsMayAdd) {
    EXPECT_TRUE(ReadForecast(u"weather_1#moon_full#place_x#source_y#issued_2026-11-22T18:00Z#\r\n"
                             u"2026-11-22_3;;;;;;;;;;7;more#\r\nend_1#\r\n")
                    .forecast);
}

TEST(ForecastReader, ImplausibleValuesAreMissing) {
    const struct {
        const char* name;
        std::u16string fields;
        ForecastDay day;
    } rows[] = {
        {"at the limits",
         u"99;65;-95;2000;100;420;360;100;00:00;23:59",
         {{}, 99, 65, -95, 2000, 100, 420, 0, 100, TimeOfDay{0, 0}, TimeOfDay{23, 59}}},
        {"beyond the limits", u"0;65.1;-95.1;2000.1;100.1;420.1;360.1;101;24:00;08:60", {{}, 0}},
        {"not numbers", u"0;nan;inf;1e3;0x1F;+5; 5;5 ;8:14;08.14", {{}, 0}},
        {"low above high", u"0;4;9;;;;;;;", {{}, 0}},
    };
    for (const auto& row : rows) {
        // A second day keeps a reply sound whose first tells nothing.
        const auto reading = ReadForecast(kReplyHead + u"2026-11-22_" + row.fields + u"#2026-11-23_0;;;;;;;;;#end_2#");
        ASSERT_TRUE(reading.forecast) << row.name;
        auto expected = row.day;
        expected.date = {2026, 11, 22};
        EXPECT_EQ(reading.forecast->days[0], expected) << row.name;
    }
}

}  // namespace
}  // namespace rlx
