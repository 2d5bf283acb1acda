#include "clocks/ui/clocks_screen.h"

#include "clocks/ui/clocks_layout.h"
#include "platform/image/image_codec.h"
#include "support/places_on_device.h"

namespace rlx {
namespace {

class ClocksScreen : public ::testing::Test {
protected:
    ClocksScreen() {
        screen.resize(480, 640);
        screen.show();
        QCoreApplication::processEvents();
    }

    QPoint Card(std::size_t clock) const { return LayOutClocks(screen.rect())[clock].card.center().toPoint(); }

    std::uint32_t Stored(std::u16string_view name) {
        return device.settings.ReadDword(RootOf(keys::kWorldClock), keys::kWorldClock, name);
    }

    void Trigger(const QString& text) {
        for (QAction* action : screen.findChild<QMenu*>("clockMenu")->actions())
            if (action->text() == text) action->trigger();
    }

    test::PlacesOnDevice device;
    CImageCodec codec;
    CLook look{device.files, codec};
    std::optional<CityIndex> choice;
    QString chooserTitle;
    CClocksScreen screen{device.cities,
                         device.clock,
                         device.settings,
                         device.resources,
                         device.boxes,
                         look,
                         [this](QWidget*, const QString& title, CityIndex) {
                             chooserTitle = title;
                             return choice;
                         }};
};

TEST_F(ClocksScreen, TapTellsAboutTheCityAndYesLeadsToItsSun) {
    std::vector<CitySunDetails> shown;
    screen.SetShowSunDetails([&](const CitySunDetails& details) { shown.push_back(details); });
    QTest::mouseClick(&screen, Qt::LeftButton, {}, Card(2));
    ASSERT_EQ(device.boxes.shown.size(), 1U);
    EXPECT_EQ(device.boxes.shown[0].title, u"City information");
    EXPECT_TRUE(device.boxes.shown[0].text.starts_with(u"City: New York\nCountry: United States\n"));
    EXPECT_TRUE(shown.empty());  // the box was closed with no
    device.boxes.answers = {BoxAnswer::kYes};
    QTest::keyClick(&screen, Qt::Key_Return);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].name, u"New York");
}

TEST_F(ClocksScreen, AnotherCityIsStoredAtOnceAndHomeIsNamed) {
    QSignalSpy changed(&screen, &CClocksScreen::CitiesChanged);
    screen.ChangeCity(2);  // called off
    EXPECT_EQ(Stored(names::kClocks[1]), 2U);
    EXPECT_EQ(changed.count(), 0);
    choice = 4;
    screen.ChangeCity(2);
    EXPECT_EQ(chooserTitle, "City of clock 2");
    EXPECT_EQ(Stored(names::kClocks[1]), 4U);
    choice = 1;
    screen.ChangeCity(0);
    EXPECT_EQ(Stored(names::kHomeClock), 1U);
    EXPECT_EQ(device.settings.ReadString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kHomeName), u"London");
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(ClocksScreen, KeysMoveBetweenTheClocksAndSayWhichOne) {
    screen.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(screen.accessibleDescription(), "Amsterdam, 21:10:05, 22/11/2026    Sun");
    QTest::keyClick(&screen, Qt::Key_Down);
    EXPECT_TRUE(screen.accessibleDescription().startsWith("London")) << screen.accessibleDescription().toStdString();
    QTest::keyClick(&screen, Qt::Key_Right);
    EXPECT_TRUE(screen.accessibleDescription().startsWith("New York"));
    QTest::keyClick(&screen, Qt::Key_Down);
    EXPECT_EQ(screen.accessibleDescription().toStdString(), "Tokyo, 05:10:05, 23/11 Mon, 8:00 ahead of home");
    device.settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kTwelveHour, 1);
    screen.Refresh();
    QTest::keyClick(&screen, Qt::Key_Up);
    EXPECT_EQ(screen.accessibleDescription().toStdString(), "New York, 3:10:05 PM, 22/11 Sun, 6:00 behind home");
}

TEST_F(ClocksScreen, BellAndMenuLeadToTheReminders) {
    std::vector<std::optional<CityIndex>> opened;
    screen.SetOpenReminders([&](std::optional<CityIndex> city) { opened.push_back(city); });
    const QPoint bell = LayOutClocks(screen.rect())[0].bell.center().toPoint();
    QTest::mouseClick(&screen, Qt::LeftButton, {}, bell);
    EXPECT_TRUE(opened.empty()) << "no reminder waits, no bell";
    EXPECT_EQ(device.boxes.shown.size(), 1U);
    screen.SetWaitingReminders(3);
    EXPECT_EQ(screen.toolTip(), "Reminders that wait: 3");
    QTest::mouseClick(&screen, Qt::LeftButton, {}, bell);
    QTest::mouseClick(&screen, Qt::LeftButton, {}, Card(2));
    EXPECT_EQ(device.boxes.shown.size(), 2U);
    Trigger("&Reminder...");
    EXPECT_EQ(opened, (std::vector<std::optional<CityIndex>>{std::nullopt, 2U}));
}

TEST_F(ClocksScreen, MenuMakesAClockTheHomeClock) {
    QContextMenuEvent asked(QContextMenuEvent::Mouse, Card(1), screen.mapToGlobal(Card(1)));
    QApplication::sendEvent(&screen, &asked);
    auto* menu = screen.findChild<QMenu*>("clockMenu");
    ASSERT_TRUE(menu != nullptr && menu->isVisible());
    Trigger("Use as &home city");
    menu->close();
    EXPECT_EQ(Stored(names::kHomeClock), 1U);
    EXPECT_EQ(Stored(names::kClocks[0]), 0U);
}

}  // namespace
}  // namespace rlx
