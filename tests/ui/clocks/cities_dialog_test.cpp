#include "places/ui/cities_dialog.h"

#include "places/ui/city_chooser.h"
#include "places/ui/city_dialog.h"
#include "platform/fake/fixed_time_zones.h"
#include "shell/clock_settings.h"
#include "shell/control_ids.h"
#include "support/places_on_device.h"

namespace rlx {
namespace {

class CitiesDialog : public ::testing::Test {
protected:
    CitiesDialog() { zones.zones["Asia/Kathmandu"] = {{0, 20700}}; }

    void Click(int button) { dialog.Control<QPushButton>(button)->click(); }

    /// Does `act` with the form of one city as soon as it is open.
    void OnForm(const std::function<void(CCityDialog&)>& act) {
        QTimer::singleShot(0, &dialog, [this, act] {
            auto* form = dialog.findChild<CCityDialog*>();
            ASSERT_NE(form, nullptr);
            act(*form);
            if (form->isVisible()) form->reject();
        });
    }
    static void Type(CCityDialog& form, int control, const char* text) {
        if (auto* combo = form.Control<QComboBox>(control)) {
            combo->setEditText(text);
        } else {
            form.Control<QLineEdit>(control)->setText(text);
        }
    }

    test::PlacesOnDevice device;
    CFixedTimeZones zones;
    CCityListStore lists{device.store, device.registry, device.files, device.cities, "/app/cities.lst"};
    CCityEditor editor{lists, device.files, "/app/cities.lst", zones, device.resources};
    CCityTimes times{device.cities, device.clock, device.resources, LoadClockSettings(device.settings)};
    std::vector<std::u16string> changes;
    CCitiesDialog dialog{device.cities,
                         times,
                         device.resources,
                         ClockForm::kTwentyFour,
                         0,
                         {editor,
                          zones,
                          device.boxes,
                          {2026, 11, 22},
                          [this](const std::u16string& before, const std::u16string& after) {
                              changes.push_back(before + u" > " + after);
                          }}};
};

TEST_F(CitiesDialog, AddsACityFilledInFromItsZone) {
    OnForm([this](CCityDialog& form) {
        Type(form, kControlCityName, "Kathmandu");
        Type(form, kControlCityCountry, "Nepal");
        Type(form, kControlCityLongitude, "85.32");
        Type(form, kControlCityLatitude, "91");
        Type(form, kControlCityZone, "Asia/Kathmandu");
        form.Control<QPushButton>(kControlCityFill)->click();
        EXPECT_EQ(form.Control<QLineEdit>(kControlCityGmt)->text(), "5:45");
        EXPECT_EQ(form.Control<QLabel>(kControlCityDaylight)->text(), "Daylight saving: Never observing");
        form.Control<QPushButton>(kControlOk)->click();
        EXPECT_EQ(device.boxes.shown.size(), 1U) << "the latitude";
        EXPECT_EQ(form.result(), QDialog::Rejected) << "the form stays";
        Type(form, kControlCityLatitude, "27.71");
        form.Control<QPushButton>(kControlOk)->click();
    });
    Click(kControlCityAdd);
    EXPECT_EQ(changes, std::vector<std::u16string>{u" > Kathmandu:Nepal"});
    EXPECT_EQ(dialog.Selected(), 1U);
    EXPECT_EQ(device.cities.GetGmt(1), u"545");
    EXPECT_EQ(LoadClockSettings(device.settings).clocks[3], 5U) << "Tokyo has moved";
}

TEST_F(CitiesDialog, ChangesTheSelectedCity) {
    dialog.Control<QLineEdit>(kControlCitySearch)->setText("sydney");
    OnForm([](CCityDialog& form) {
        EXPECT_EQ(form.Control<QLineEdit>(kControlCityStartDay)->text(), "277");
        Type(form, kControlCityName, "Botany Bay");
        form.Control<QPushButton>(kControlOk)->click();
    });
    Click(kControlCityChange);
    EXPECT_EQ(changes, std::vector<std::u16string>{u"Sydney:Australia > Botany Bay:Australia"});
    EXPECT_EQ(device.cities.GetName(LoadClockSettings(device.settings).clocks[2]), u"Botany Bay");
}

TEST_F(CitiesDialog, DeletesAfterAQuestionAndTellsWhoseCityIsGone) {
    dialog.Control<QLineEdit>(kControlCitySearch)->setText("tokyo");
    device.boxes.answers = {BoxAnswer::kNo, BoxAnswer::kYes};
    Click(kControlCityDelete);
    EXPECT_EQ(device.cities.Count(), 5U);
    Click(kControlCityDelete);
    EXPECT_EQ(device.cities.Count(), 4U);
    EXPECT_EQ(device.boxes.shown.back().text, u"\"Tokyo, Japan\" is no longer in the list of cities.");
    EXPECT_FALSE(dialog.Control<QPushButton>(kControlCityDelete)->isEnabled()) << "nothing fits the search any more";
}

class CityChooserDialog : public ::testing::Test {
protected:
    QString Top() {
        return chooser.findChild<QTreeView*>()->model()->index(0, CCityListModel::kPlace).data().toString();
    }

    test::PlacesOnDevice device;
    CCityTimes times{device.cities, device.clock, device.resources, LoadClockSettings(device.settings)};
    CCityChooser chooser{device.cities, times, device.resources, ClockForm::kTwentyFour, "Home city", 3};
};

TEST_F(CityChooserDialog, FollowsWhatIsTyped) {
    auto* field = chooser.Control<QLineEdit>(kControlCitySearch);
    auto* list = chooser.Control<QTreeView>(kControlCityList);
    ASSERT_TRUE(field != nullptr && list != nullptr);
    EXPECT_EQ(chooser.Selected(), 3U);  // the current city, all others around it
    EXPECT_EQ(list->model()->rowCount(), 5);
    QTest::keyClicks(field, "yo");
    EXPECT_EQ(list->model()->rowCount(), 2);
    EXPECT_EQ(Top(), "New York\nUnited States");
    EXPECT_EQ(list->model()->index(0, CCityListModel::kTime).data().toString(), "15:10\n-6:00");
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_EQ(chooser.Selected(), 4U);
    field->setText("japan");
    EXPECT_EQ(Top(), "Tokyo\nJapan");
    field->setText("xyzzy");
    EXPECT_EQ(chooser.Selected(), std::nullopt);
    EXPECT_FALSE(chooser.Control<QPushButton>(kControlOk)->isEnabled());
    EXPECT_FALSE(chooser.findChild<QLabel*>("nothingFound")->isHidden());
}

}  // namespace
}  // namespace rlx
