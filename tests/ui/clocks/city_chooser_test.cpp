#include "places/ui/city_chooser.h"

#include <QPushButton>
#include <QTest>

#include "shell/clock_settings.h"
#include "shell/control_ids.h"
#include "support/places_on_device.h"

namespace rlx {
namespace {

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
