#include "today/ui/today_dialog.h"

#include "platform/fake/memory_registry.h"
#include "shell/control_ids.h"
#include "shell/setting_names.h"

namespace rlx {
namespace {

TEST(TodayDialogTest, WritesWhatItShowsHoweverItCloses) {
    const struct {
        const char* name;
        int cities;  // as stored; -1 for nothing stored
        int rates;
        int shownCities;
        bool shownRates;
    } rows[] = {
        {"nothing stored", -1, -1, 3, true},
        {"none", 0, 0, 1, false},
        {"more than the list holds", 9, 7, 5, true},
    };
    const CResources resources;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        CMemoryRegistry registry;
        CRegistryStore settings(registry);
        const auto root = RootOf(keys::kRoamlytix);
        if (row.cities >= 0) settings.WriteDword(root, keys::kRoamlytix, names::kTodayCities, row.cities);
        if (row.rates >= 0) settings.WriteDword(root, keys::kRoamlytix, names::kTodayRates, row.rates);
        CTodayDialog dialog(settings, resources);
        dialog.show();
        EXPECT_EQ(dialog.Control<QComboBox>(kControlTodayCities)->currentText(), QString::number(row.shownCities));
        EXPECT_EQ(dialog.Control<QCheckBox>(kControlTodayRates)->isChecked(), row.shownRates);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_EQ(ReadTodayOptions(settings), (TodayOptions{row.shownCities, row.shownRates}));
        settings.ReadDword(root, keys::kRoamlytix, names::kTodayCities);
        EXPECT_EQ(settings.Status(), ReadStatus::kRead);
    }
}

}  // namespace
}  // namespace rlx
