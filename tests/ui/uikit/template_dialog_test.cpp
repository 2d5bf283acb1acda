#include "uikit/template_dialog.h"

#include "shell/control_ids.h"
#include "shell/resources.h"

namespace rlx {
namespace {

TEST(TemplateDialog, FillsASmallWindowAndStandsOverALargeOne) {
    struct Case {
        QSize window;
        QSize first;
        QSize second;
    };
    const QSize list(380, 390);
    const QSize editor(360, 300);
    const Case cases[] = {{{480, 640}, list, editor}, {{300, 320}, {300, 320}, {300, 320}}};
    const CResources resources;
    for (const Case& one : cases) {
        QWidget window;
        window.resize(one.window);
        window.show();
        CTemplateDialog first(*resources.Dialog(kDialogReminders), &window);
        first.resize(list);
        first.show();
        CTemplateDialog second(*resources.Dialog(kDialogReminder), &first);
        second.resize(editor);
        second.show();
        EXPECT_EQ(first.size(), one.first);
        EXPECT_EQ(second.size(), one.second) << "a dialog over a dialog";
    }
}

}  // namespace
}  // namespace rlx
