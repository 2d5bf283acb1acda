#include "clocks/reminder_post.h"

#include "platform/registry_value.h"
#include "support/places_on_device.h"

namespace rlx {
namespace {

class CFakeNotifier : public INotifier {
public:
    bool Notify(const Notification& notification) override {
        if (during) during();
        if (takes) taken.push_back(notification);
        return takes;
    }

    bool takes = true;
    std::vector<Notification> taken;
    std::function<void()> during;  ///< what another program does meanwhile
};

/// The device's clock stands at 22 November 2026, 21:10:05 in Amsterdam.
class Reminders : public ::testing::Test {
protected:
    void Save(std::size_t number, int hour, int minute, std::u16string place = u"Amsterdam:Netherlands") {
        EXPECT_TRUE(store.Save(number, {{{2026, 11, 22}, hour, minute, 0, 0}, std::move(place), u"Call"}));
    }
    void Show(int hour, int minute, int day = 22) { device.clock.Set({{2026, 11, day}, hour, minute, 0, 0}); }

    test::PlacesOnDevice device;
    CFakeNotifier notifier;
    CReminderStore store{device.registry};
    CReminderPost post{{device.registry, device.cities, device.clock, notifier, device.resources}};
};

TEST_F(Reminders, ComeOnceWhenTheCitysClockShowsTheTime) {
    device.settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kTwelveHour, 1);
    Save(2, 15, 30, u"New York:United States");
    Show(21, 29);
    post.TellDue(&device.boxes);
    EXPECT_TRUE(notifier.taken.empty());
    EXPECT_EQ(post.Waiting(), (std::vector<DateTime>{{{2026, 11, 22}, 21, 30, 0, 0}}));
    Show(21, 30);
    post.TellDue(&device.boxes);
    post.TellDue(&device.boxes);
    EXPECT_EQ(notifier.taken,
              (std::vector<Notification>{{u"Roamlytix Reminder2", u"Call\nNew York, 3:30 PM, Sun 22/11/2026"}}));
    EXPECT_TRUE(device.boxes.shown.empty());
    EXPECT_TRUE(post.Waiting().empty());
    Save(2, 15, 35, u"New York:United States");
    Show(21, 35);
    post.TellDue(&device.boxes);
    EXPECT_EQ(notifier.taken.size(), 2U) << "set anew it comes anew";
}

TEST_F(Reminders, AreToldByOneOfTwoPrograms) {
    Save(0, 21, 30);
    Show(21, 30);
    CFakeNotifier otherNotifier;
    CReminderPost other{{device.registry, device.cities, device.clock, otherNotifier, device.resources}};
    notifier.during = [&] { other.TellDue(&device.boxes); };
    post.TellDue(&device.boxes);
    EXPECT_EQ(notifier.taken.size() + otherNotifier.taken.size(), 1U);
}

TEST_F(Reminders, WithoutANotificationServiceComeInABoxOrWaitForOne) {
    notifier.takes = false;
    Save(0, 21, 0);
    post.TellDue(nullptr);
    post.TellDue(&device.boxes);
    post.TellDue(&device.boxes);
    ASSERT_EQ(device.boxes.shown.size(), 1U);
    EXPECT_EQ(device.boxes.shown[0].title, u"Roamlytix Reminder");
}

TEST_F(Reminders, MissedOnesAreListedOnceInOneBox) {
    Save(0, 9, 0);
    Save(1, 21, 10);  // five seconds ago: comes as usual
    Save(3, 15, 0, u"London:United Kingdom");
    Save(4, 22, 0);
    post.TellMissed(device.boxes);
    post.TellMissed(device.boxes);
    ASSERT_EQ(device.boxes.shown.size(), 1U);
    EXPECT_EQ(device.boxes.shown[0].title, u"Missed reminders");
    EXPECT_EQ(device.boxes.shown[0].text,
              u"Call\nAmsterdam, 09:00, Sun 22/11/2026\n\nCall\nLondon, 15:00, Sun 22/11/2026");
    post.TellDue(&device.boxes);
    EXPECT_EQ(notifier.taken.size(), 1U);
}

TEST_F(Reminders, ClaimedBySomebodyWhoDiedComeAfterAll) {
    Save(0, 21, 30);
    Show(21, 30);
    auto stored = store.Load(0);
    ASSERT_TRUE(store.Mark(*stored, {ReminderMark::State::kClaimed, device.clock.UtcNow()}));
    Show(21, 31);
    post.TellDue(nullptr);
    EXPECT_TRUE(notifier.taken.empty());
    Show(21, 32);
    post.TellDue(nullptr);
    EXPECT_EQ(notifier.taken.size(), 1U);
}

TEST_F(Reminders, FollowTheirCityWhateverHappensToTheListAndTheZone) {
    Save(0, 20, 30, u"London:United Kingdom");
    const auto first = [this] { return post.Waiting().empty() ? DateTime{} : post.Waiting().front(); };
    EXPECT_EQ(first(), (DateTime{{2026, 11, 22}, 21, 30, 0, 0}));
    device.cities.AddCity(u"Aachen:Germany", u"6:50", u"1:88:2:298:3", u"1");
    device.Write(names::kHomeClock, 1);  // Amsterdam's number now
    EXPECT_EQ(first(), (DateTime{{2026, 11, 22}, 21, 30, 0, 0})) << "another number";
    device.Write(names::kSyncZone, 1);
    device.clock.SetBias(300);
    device.clock.Set({{2026, 11, 22}, 15, 10, 0, 0});
    EXPECT_EQ(first(), (DateTime{{2026, 11, 22}, 20, 30, 0, 0})) << "a zone five hours behind, in UTC";
    Save(0, 23, 30, u"Atlantis:Nowhere");
    CReminderClock clock(device.cities, device.clock, LoadClockSettings(device.settings));
    EXPECT_EQ(clock.CityOf(u"Atlantis:Nowhere").name, u"Amsterdam");
}

TEST_F(Reminders, BrokenValuesReadAsNone) {
    const auto write = [this](std::u16string_view name, const RegistryValue& value) {
        device.registry.Set(RootOf(keys::kAlarms), keys::kAlarms, name, value);
    };
    const std::pair<std::u16string, std::u16string> rows[] = {
        {u"2026-11-22", u"24:00"}, {u"2026-11-22", u"9:00"}, {u"2026-11-22", u""}, {u"2026-02-29", u"09:00"}};
    for (const auto& [date, time] : rows) {
        write(u"date1", TextValue(date));
        write(u"clock1", TextValue(time));
        EXPECT_FALSE(store.Load(1));
    }
    write(u"date1", DwordValue(20261122));
    EXPECT_FALSE(store.Load(1)) << "a number";
    write(u"date1", TextValue(u"2026-11-22"));
    write(u"clock1", TextValue(u"22:00"));
    write(u"told1", TextValue(u"claimed 2026-11-22 21:10:xx"));
    write(u"desc1", TextValue(std::u16string(70000, u'x')));
    const auto stored = store.Load(1);
    ASSERT_TRUE(stored) << "without a city it goes by the home clock";
    EXPECT_EQ(stored->reminder.text.size(), kLongestReminder);
    EXPECT_EQ(stored->mark.state, ReminderMark::State::kWaiting);
    EXPECT_EQ(post.Waiting().size(), 1U);
    EXPECT_TRUE(store.Clear(1));
    EXPECT_TRUE(device.registry.ValueNames(RootOf(keys::kAlarms), keys::kAlarms).empty());
}

}  // namespace
}  // namespace rlx
