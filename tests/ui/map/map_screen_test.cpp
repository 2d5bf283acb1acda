#include "map/ui/map_screen.h"

#include "map/ui/sun_details.h"
#include "platform/image/image_codec.h"
#include "support/places_on_device.h"

namespace rlx {
namespace {

constexpr const char16_t* kSkinText = u"[Map]\nMI@\\map.png\r\nSHADCLR@0\r\n>\n*";

class MapScreen : public ::testing::Test {
protected:
    MapScreen() {
        device.settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kMapTip, 1);
        screen.resize(480, 640);
        screen.SetShowInformation([this](CityIndex city) { told.push_back(city); });
    }

    void Show() {
        screen.show();
        QCoreApplication::processEvents();
    }

    /// A skin with a map, white all over, whose night is black.
    void TakeWhiteMap() {
        device.files.files["/skin/map.png"] = codec.SavePng(CBitmap(480, 240, 0xFFFFFFFFU)).value();
        look.SetSkin(CSkin(kSkinText, "/skin"));
    }

    QPoint PointFor(const EarthPoint& point) const {
        const QRect picture = LayOutMap(screen.rect()).picture;
        const MapPixel at = PixelOf(point, {picture.width(), picture.height(), kMapMargin});
        return picture.topLeft() + QPoint(at.x, at.y);
    }

    void Tap(const EarthPoint& point) { QTest::mouseClick(&screen, Qt::LeftButton, {}, PointFor(point)); }

    bool IsBlack(const EarthPoint& point) {
        return screen.grab().toImage().pixelColor(PointFor(point)).lightness() < 20;
    }

    template <typename Widget>
    Widget* Child(const char* name) {
        return screen.findChild<Widget*>(name);
    }

    std::string Panel() { return Child<QWidget>("riseSetPanel")->accessibleDescription().toStdString(); }
    std::string Clock() { return Child<QWidget>("mapClock")->accessibleDescription().toStdString(); }

    /// Presses the scrubber at a share of its bar, whose ends lie 12 pixels from its sides.
    void Scrub(double share) {
        auto* scrubber = Child<QWidget>("mapScrubber");
        const int x = 12 + static_cast<int>(share * (scrubber->width() - 24));
        QTest::mouseClick(scrubber, Qt::LeftButton, {}, QPoint(x, scrubber->height() / 2));
    }

    test::PlacesOnDevice device;
    CImageCodec codec;
    CLook look{device.files, codec};
    std::vector<CityIndex> told;
    CMapScreen screen{device.cities, device.clock, device.settings, device.resources, device.boxes, look};
};

TEST_F(MapScreen, TapNearACitySelectsItAndAnotherTellsAboutIt) {
    Show();
    EXPECT_EQ(screen.Selected(), 0U);
    Tap({37.5, 141.0});  // off Tokyo
    EXPECT_EQ(screen.Selected(), 4U);
    EXPECT_NE(Panel().find("Rise&Set  Tokyo\n Today Tomorrow\nSunrise 06:2"), std::string::npos) << Panel();
    EXPECT_TRUE(told.empty());
    Tap({37.5, 141.0});
    EXPECT_EQ(told, std::vector<CityIndex>{4});
    Tap({-60.0, -120.0});  // nothing for thousands of miles
    EXPECT_EQ(screen.Selected(), 4U);
    EXPECT_EQ(told.size(), 1U);
    QTest::keyClick(&screen, Qt::Key_Up);
    QTest::keyClick(&screen, Qt::Key_Return);
    EXPECT_EQ(told, (std::vector<CityIndex>{4, 3}));
}

TEST_F(MapScreen, CitiesOutsideTheFiveAreFoundToo) {
    device.Write(names::kClocks[3], 0);
    screen.Refresh();
    Show();
    Tap({35.7, 139.7});
    EXPECT_EQ(screen.Selected(), 4U);
}

TEST_F(MapScreen, ScrubberMovesClockPanelAndNightAndNowReturns) {
    TakeWhiteMap();
    Show();
    const EarthPoint sahara{20.0, 10.0};
    EXPECT_TRUE(IsBlack(sahara));
    EXPECT_FALSE(Child<QWidget>("mapNow")->isEnabled());
    Scrub(0.5);
    EXPECT_FALSE(IsBlack(sahara));
    EXPECT_EQ(screen.Shown(), (DateTime{{2026, 11, 22}, 12, 0, 0, 0}));
    EXPECT_EQ(Clock(), "Amsterdam, 12:00:00, 22/11/2026 Sun");
    QTest::mouseClick(Child<QToolButton>("mapSpan"), Qt::LeftButton);
    Scrub(0.0);
    EXPECT_EQ(screen.Shown().date, (Date{2026, 1, 1}));
    EXPECT_NE(Panel().find("01/01 Thu 02/01 Fri"), std::string::npos) << Panel();
    QTest::keyClick(&screen, Qt::Key_Right);
    EXPECT_EQ(screen.Shown().date, (Date{2026, 1, 2}));
    QTest::mouseClick(Child<QToolButton>("mapNow"), Qt::LeftButton);
    EXPECT_EQ(screen.Shown(), device.clock.Now());
    EXPECT_TRUE(IsBlack(sahara));
}

TEST_F(MapScreen, MapClockAndTwelveHoursAreSettings) {
    device.settings.WriteDword(RootOf(keys::kMap), keys::kMap, names::kMapClock, 2);
    device.settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kTwelveHour, 1);

    screen.Refresh();
    Show();
    EXPECT_EQ(Clock(), "New York, 3:10:05 PM, 22/11/2026 Sun");
    EXPECT_NE(Panel().find("Sunrise 8:1"), std::string::npos) << Panel();
    EXPECT_NE(Panel().find(" AM"), std::string::npos);
}

TEST_F(MapScreen, BrokenImageLeavesAPlainMapAndSaysSo) {
    device.files.files["/skin/map.png"] = "no picture";
    look.SetSkin(CSkin(kSkinText, "/skin"));
    Show();
    screen.grab();
    EXPECT_EQ(screen.accessibleDescription(), "The map image \"\\map.png\" cannot be shown.");
    TakeWhiteMap();
    screen.grab();
    EXPECT_EQ(screen.accessibleDescription(), "");
}

TEST(SunDetails, PolarNightIsSaidInWords) {
    const CResources resources;
    QStringList texts;
    QTimer::singleShot(0, [&] {
        auto* dialog = QApplication::activeModalWidget();
        for (const QLabel* label : dialog->findChildren<QLabel*>())
            texts << label->text();
        dialog->close();
    });
    ShowSunDetails({u"Longyearbyen", u"Svalbard", u"15", u"78", u"", u"-", u"1h", u"1"}, {2026, 12, 21},
                   ClockForm::kTwentyFour, resources, nullptr);
    EXPECT_TRUE(texts.contains("The sun does not rise") && texts.contains("Long: 15 Lat: 78"));
}

}  // namespace
}  // namespace rlx
