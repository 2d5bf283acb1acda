#include "uikit/folder_chooser.h"

#include "platform/fake/scripted_message_boxes.h"
#include "platform/posix/posix_file_system.h"
#include "shell/control_ids.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

class FolderChooser : public ::testing::Test {
protected:
    FolderChooser() {
        for (const char* name : {"skins/Blue", "skins/Night", "skins/.cache", "other"})
            std::filesystem::create_directories(folder / name);
        chooser.emplace(files, resources, boxes, "Folder of skins", folder / "skins/gone/deeper");
        chooser->show();
    }

    QListWidget* List() { return chooser->Control<QListWidget>(kControlFolderList); }
    QLineEdit* Path() { return chooser->Control<QLineEdit>(kControlFolderPath); }

    QStringList Names() {
        QStringList names;
        for (int row = 0; row < List()->count(); ++row)
            names << List()->item(row)->text();
        return names;
    }

    test::CTempFolder folder;
    CPosixFileSystem files;
    CResources resources;
    CScriptedMessageBoxes boxes;
    std::optional<CFolderChooser> chooser;
};

TEST_F(FolderChooser, EntersAndLeavesFoldersByKeyboardAndTap) {
    EXPECT_EQ(chooser->Folder(), folder / "skins") << "what is left of a path that is gone";
    EXPECT_EQ(Names(), QStringList({"..", "Blue", "Night"}));
    List()->setCurrentRow(2);
    QTest::keyClick(List(), Qt::Key_Return);
    EXPECT_EQ(chooser->Folder(), folder / "skins/Night");
    EXPECT_TRUE(chooser->isVisible());
    QTest::keyClick(List(), Qt::Key_Backspace);
    EXPECT_EQ(List()->currentItem()->text(), "Night");
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, List()->visualItemRect(List()->item(0)).center());
    EXPECT_EQ(Names(), QStringList({"..", "other", "skins"}));
}

TEST_F(FolderChooser, TakesWhatIsTypedOrSaysWhyNot) {
    Path()->setText("nowhere");
    chooser->accept();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, u"There is no folder \"nowhere\".");
    EXPECT_TRUE(chooser->isVisible());
    Path()->setText("../other/");
    chooser->accept();
    EXPECT_EQ(chooser->result(), QDialog::Accepted);
    EXPECT_EQ(chooser->Folder(), folder / "other");
}

}  // namespace
}  // namespace rlx
