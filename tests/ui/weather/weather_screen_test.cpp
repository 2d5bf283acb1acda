#include "weather/ui/weather_screen.h"

#include "base/text.h"
#include "platform/image/image_codec.h"
#include "support/places_on_device.h"

namespace rlx {
namespace {

/// Six days of Amsterdam as issued on the 22nd; the fourth day lacks its values.
std::u16string Reply(std::u16string_view source = u"Open-Meteo", std::u16string_view feedName = u"amsterdam_nl") {
    return u"weather_1#place_" + std::u16string(feedName) + u"#source_" + std::u16string(source) +
           u"#issued_2026-11-22T18:00Z#"
           u"2026-11-21_3;8;2;0.0;5;14;230;81;08:14;17:01#"
           u"2026-11-22_3;9.1;4.0;0.0;10;14.5;230;81;08:14;17:01#"
           u"2026-11-23_61;10.6;-6.3;4.2;75;22.0;250;88;08:16;17:00#"
           u"2026-11-24_95;12;5.5;12;90;31.3;;90;08:17;16:59#"
           u"2026-11-25_;;;;;;;;;#"
           u"2026-11-26_0;8;1;0;0;10;10;60;08:20;16:57#end_6#";
}

/// Answers by a function; one that answers nothing has no forecast of that name.
class CServer : public IForecastServer {
public:
    std::vector<std::u16string> asked;
    std::function<FeedReply(const std::u16string&)> answer;
    QString subject;

    FeedReply Ask(const std::u16string& feedName, const QSize& /*screen*/) override {
        asked.push_back(feedName);
        return answer ? answer(feedName) : FeedReply{{}, FeedOutcome::kAnswered};
    }
    void SetSubject(const QString& text) override { subject = text; }
    bool Cancelled() const override { return false; }
};

class WeatherScreen : public ::testing::Test {
protected:
    WeatherScreen() {
        device.files.files["/app/cities.wet"] = "2\nAmsterdam;Netherlands;amsterdam_nl\nTokyo;Japan;tokyo_japan\n";
        device.settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kWeatherTip, 2);
        store.EnsureCreated();
        screen.resize(480, 640);
        screen.show();
        screen.Entered();
    }

    void Fill(const std::u16string& reply) {
        ASSERT_EQ(store.Save(u"Amsterdam:Netherlands", reply, {{2026, 11, 22}, 20, 0, 0, 0}).outcome,
                  SaveOutcome::kSaved);
        screen.Refresh();
    }

    template <typename Widget = QWidget>
    Widget* Find(const char* name) {
        auto* widget = screen.findChild<Widget*>(name);
        EXPECT_TRUE(widget != nullptr) << name;
        return widget;
    }

    std::string Card(int day) { return Find(qPrintable(QString("day%1").arg(day)))->accessibleName().toStdString(); }
    std::string Details() { return Find("dayDetails")->accessibleDescription().toStdString(); }
    std::string Origin() { return Find("origin")->accessibleDescription().toStdString(); }
    void Click(const char* name) { QTest::mouseClick(Find(name), Qt::LeftButton); }

    test::PlacesOnDevice device;
    CImageCodec codec;
    CLook look{device.files, codec};
    CWeatherStore store{device.store, device.files, "/app/cities.wet"};
    std::optional<CityIndex> choice;
    CServer server;
    CWeatherScreen screen{{device.cities, device.clock, device.settings, device.resources, device.boxes, look,
                           device.files, store, "/app", [this](QWidget*, const QString&, CityIndex) { return choice; },
                           [this](const auto& update) { update(server); }}};
};

TEST_F(WeatherScreen, WithoutAForecastItOffersToFetchOne) {
    EXPECT_FALSE(Find("day0")->isVisible());
    EXPECT_EQ(Origin(), "\n");
    server.answer = [](const std::u16string& name) {
        return FeedReply{name == u"amsterdam_nl" ? Reply() : u"", FeedOutcome::kAnswered};
    };
    Click("updateNow");
    EXPECT_EQ(server.asked, (std::vector<std::u16string>{u"amsterdam_nl", u"London", u"New York", u"Sydney"}));
    EXPECT_TRUE(Find("day0")->isVisible());
    EXPECT_FALSE(Find("updateNow")->isVisible());
    ASSERT_EQ(device.boxes.shown.size(), 1U);  // the three others have no forecast
    EXPECT_EQ(server.subject, "Sydney: 4 of 4");
}

TEST_F(WeatherScreen, AFailedUpdateKeepsTheLastGoodForecastAndSaysSo) {
    Fill(Reply());
    server.answer = [](const auto&) { return FeedReply{{}, FeedOutcome::kFailed}; };
    Click("update");
    EXPECT_EQ(server.asked.size(), 1U);
    EXPECT_TRUE(Find("day0")->isVisible());
    EXPECT_TRUE(Origin().starts_with("not updated\n")) << Origin();
    server.answer = [](const auto&) { return FeedReply{Reply(), FeedOutcome::kAnswered}; };
    Click("update");
    EXPECT_TRUE(Origin().starts_with("Forecast of ")) << Origin();
}

TEST_F(WeatherScreen, APlaceWhoseCityIsGoneIsChosenAnew) {
    device.settings.WriteDword(RootOf(keys::kWeather), keys::kWeather, u"wetp2", 4'000'000);
    screen.Refresh();
    EXPECT_EQ(Find<CLinkButton>("place1")->text(), "no city");
    Click("place1");
    choice = 0;
    Fill(Reply());
    Click("updateNow");
    EXPECT_EQ(Find<CLinkButton>("place1")->text(), "Amsterdam");
    EXPECT_TRUE(Find("day0")->isVisible());
    EXPECT_TRUE(server.asked.empty());
}

TEST_F(WeatherScreen, AFingerThatRestsOnAPlaceOpensItsMenu) {
    auto* menu = Find<QMenu>("weatherMenu");
    QTest::mousePress(Find("place2"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return menu->isVisible(); }));
    choice = 0;
    menu->actions().front()->trigger();
    menu->close();
    EXPECT_EQ(Find<CLinkButton>("place2")->text(), "Amsterdam");
}

TEST_F(WeatherScreen, OffersTheIconSetsThatLieInTheFolder) {
    auto* icons = Find<QMenu>("weatherMenu")->findChild<QMenu*>();
    ASSERT_NE(icons, nullptr);
    device.files.files["/app/wiconsets/Clouds/fog.png"] = "no picture";
    emit icons->aboutToShow();
    QStringList names;
    for (const QAction* each : icons->actions())
        names << each->text() + (each->isChecked() ? "*" : "");
    EXPECT_EQ(names.join(",").toStdString(), "As the skin has them*,Standard,Clouds");
    icons->actions().last()->trigger();
    emit icons->aboutToShow();
    EXPECT_TRUE(icons->actions().last()->isChecked());
}

TEST_F(WeatherScreen, DaysOfTheCityFromTodayOnWithADashForWhatIsMissing) {
    Fill(Reply());
    EXPECT_EQ(Card(0), "Today, Overcast, High 9 °C, Low 4 °C, Chance of rain 10%");
    EXPECT_EQ(Card(1), "Tomorrow, Light rain, High 11 °C, Low -6 °C, Chance of rain 75%");
    Click("unit");
    EXPECT_EQ(Card(1), "Tomorrow, Light rain, High 51 °F, Low 21 °F, Chance of rain 75%");
    EXPECT_EQ(device.settings.ReadDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kFahrenheit), 1U);
    Click("unit");
    EXPECT_EQ(Card(3), "25/11 Wed, not available, High –, Low –, Chance of rain –");
    EXPECT_TRUE(Find("day4")->isVisible());
    EXPECT_EQ(Origin(), "Forecast of 22/11/2026 18:00 UTC\nSource: Open-Meteo");
    device.clock.Set({{2026, 11, 23}, 0, 10, 5, 0});
    screen.Tick();
    EXPECT_EQ(Card(0), "Today, Light rain, High 11 °C, Low -6 °C, Chance of rain 75%");
    EXPECT_FALSE(Find("day4")->isVisible());  // four days are left
}

TEST_F(WeatherScreen, OldDaysAreNeverCalledTodayAndSaySo) {
    Fill(Reply(u"Sample data"));
    EXPECT_TRUE(Origin().starts_with("sample\n")) << Origin();
    device.clock.Set({{2026, 11, 23}, 9, 0, 0, 0});
    screen.Tick();
    EXPECT_TRUE(Origin().starts_with("out of date\nsample\n")) << Origin();
    EXPECT_TRUE(Card(0).starts_with("23/11 Mon, ")) << Card(0);
    device.clock.Set({{2026, 12, 23}, 9, 0, 1, 0});
    screen.Refresh();
    EXPECT_TRUE(Card(0).starts_with("21/11 Sat, ")) << Card(0);
    EXPECT_TRUE(Origin().ends_with("\nThe days of this forecast have passed. Tap Update.")) << Origin();
}

TEST_F(WeatherScreen, DaysFollowEachOtherByKeySwipeAndButton) {
    Fill(Reply());
    Click("day1");
    EXPECT_EQ(device.settings.ReadDword(RootOf(keys::kWeather), keys::kWeather, names::kDayByDay), 1U);
    EXPECT_EQ(Details(),
              "Tomorrow\nLight rain\nHigh: 11 °C\nLow: -6 °C\nChance of rain: 75%\nPrecipitation: 4.2 mm\n"
              "Wind: 22 km/h WSW\nHumidity: 88%\nSunrise: 08:16\nSunset: 17:00");
    QTest::keyClick(&screen, Qt::Key_Right);
    EXPECT_TRUE(Details().starts_with("24/11 Tue\nThunderstorm\n")) << Details();
    const QPoint middle = Find("dayDetails")->geometry().center();
    QTest::mousePress(&screen, Qt::LeftButton, {}, middle);
    QTest::mouseRelease(&screen, Qt::LeftButton, {}, middle - QPoint(80, 4));
    EXPECT_EQ(Details().substr(0, 9), "25/11 Wed");
    QTest::keyClick(&screen, Qt::Key_Right);
    QTest::keyClick(&screen, Qt::Key_Right);  // there is no further day
    EXPECT_EQ(Details().substr(0, 9), "26/11 Thu");
    Click("previousDay");
    EXPECT_EQ(Details().substr(0, 9), "25/11 Wed");
    EXPECT_TRUE(screen.GoBack());
    EXPECT_TRUE(Find("day0")->isVisible());
    EXPECT_FALSE(screen.GoBack());
}

TEST_F(WeatherScreen, EachPlaceHasACityOfItsOwn) {
    EXPECT_EQ(Find<CLinkButton>("place2")->text(), "New York");
    screen.ChangePlace(2);  // called off
    EXPECT_EQ(Find<CLinkButton>("place2")->text(), "New York");
    choice = 0;
    Fill(Reply());
    Click("place3");
    EXPECT_FALSE(Find("day0")->isVisible());
    QTest::keyClick(&screen, Qt::Key_F2);
    EXPECT_EQ(Find<CLinkButton>("place3")->text(), "Amsterdam");
    EXPECT_TRUE(Find("day0")->isVisible());
    EXPECT_EQ(device.settings.ReadDword(RootOf(keys::kWeather), keys::kWeather, u"wetp4"), 0U);
    EXPECT_EQ(device.settings.ReadDword(RootOf(keys::kWeather), keys::kWeather, names::kForecast), 3U);
}

TEST_F(WeatherScreen, EachTipIsShownOnce) {
    device.settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kWeatherTip, 0);
    screen.Entered();
    screen.Entered();
    EXPECT_EQ(device.boxes.shown.size(), 1U);
    Fill(Reply());
    Click("day0");
    Click("view");
    Click("day0");
    EXPECT_EQ(device.boxes.shown.size(), 2U);
}

}  // namespace
}  // namespace rlx
