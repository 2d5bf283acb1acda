#include "today/ui/today_dialog.h"

#include "platform/fake/memory_registry.h"
#include "shell/control_ids.h"
#include "shell/setting_names.h"

namespace rlx {
namespace {

TEST(TodayDialogTest, WritesWhatItShowsHoweverItCloses) {
    const CResources resources;
    CMemoryRegistry registry;
    CRegistryStore settings(registry);
    settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kTodayRates, 0);
    settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kTodayCities, 9);
    CTodayDialog dialog(settings, resources);
    dialog.show();
    EXPECT_EQ(dialog.Control<QComboBox>(kControlTodayCities)->currentText(), "5") << "no more than the list holds";
    EXPECT_FALSE(dialog.Control<QCheckBox>(kControlTodayRates)->isChecked());
    dialog.Control<QCheckBox>(kControlTodayRates)->click();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(ReadTodayOptions(settings), (TodayOptions{5, true}));
    EXPECT_EQ(settings.ReadDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kTodayCities), 5U);
}

}  // namespace
}  // namespace rlx
