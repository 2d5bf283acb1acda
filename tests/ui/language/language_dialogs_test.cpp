#include "platform/fake/scripted_message_boxes.h"
#include "platform/posix/posix_file_system.h"
#include "shell/control_ids.h"
#include "shell/ui/install_languages.h"
#include "shell/ui/language_dialog.h"
#include "support/paths.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

/// An application folder with one language, and a card with a module, a file that is none and another file.
class LanguageDialogs : public ::testing::Test {
protected:
    LanguageDialogs() {
        home.Put("langs.dat", "0,English,none@1,French,RoamlyFrench.dll@>");
        card.Put("RoamlyBroken.dll", "MZ");
        card.Put("RoamlyFrench.dll", "MZ");
        card.Put("readme.txt", "");
        std::filesystem::copy(std::filesystem::path(test::kTestModuleDir) / "RoamlyPseudo.dll", card.Path());
    }

    std::unique_ptr<CInstallLanguages> OpenPage() {
        auto page = std::make_unique<CInstallLanguages>(LanguagePorts{files, folder, resources, boxes}, card.Path(),
                                                        u"", [this](auto...) { return browsed; });
        page->show();
        return page;
    }

    static QStringList Rows(const CInstallLanguages& page) {
        QStringList rows;
        const auto* list = page.Control<QListWidget>(kControlModuleList);
        for (int i = 0; i < list->count(); ++i)
            rows << list->item(i)->text();
        return rows;
    }

    static bool CanInstall(const CInstallLanguages& page, int row) {
        page.Control<QListWidget>(kControlModuleList)->setCurrentRow(row);
        return page.Control<QPushButton>(kControlInstall)->isEnabled();
    }

    test::CTempFolder home;
    test::CTempFolder card;
    CPosixFileSystem files;
    CApplicationFolder folder{files, home.Path()};
    CResources resources;
    CScriptedMessageBoxes boxes;
    std::filesystem::path browsed;
};

TEST_F(LanguageDialogs, OkKeepsTheIndexOfTheChosenLanguage) {
    const std::vector<Language> languages = {
        {0, u"English", u"none"}, {4, u"French", u"f.dll"}, {7, u"Dansk", u"d.dll"}};
    std::vector<std::uint32_t> kept;
    bool accepts = false;
    CLanguageDialog dialog(resources, languages, 4, [&](std::uint32_t index) {
        kept.push_back(index);
        return accepts;
    });
    dialog.show();
    auto* list = dialog.Control<QComboBox>(kControlLanguageList);
    EXPECT_EQ(list->currentText(), "French");
    QTest::keyClick(list, Qt::Key_Down);
    dialog.Control<QPushButton>(kControlOk)->click();
    EXPECT_TRUE(dialog.isVisible()) << "not kept";
    accepts = true;
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(kept, (std::vector<std::uint32_t>{7, 7}));
    EXPECT_EQ(LanguageOfLocale(languages, QLocale(QLocale::French, QLocale::Canada)), 4U);
    EXPECT_EQ(LanguageOfLocale(languages, QLocale(QLocale::Thai)), 0U);
}

TEST_F(LanguageDialogs, PageInstallsWhatIsNew) {
    const auto page = OpenPage();
    EXPECT_EQ(Rows(*page), QStringList({"RoamlyBroken.dll", "RoamlyFrench.dll (INSTALLED)", "RoamlyPseudo.dll"}));
    EXPECT_FALSE(page->Control<QPushButton>(kControlInstall)->isEnabled()) << "nothing is selected";
    EXPECT_FALSE(CanInstall(*page, 1));
    EXPECT_TRUE(CanInstall(*page, 0));
    page->Control<QPushButton>(kControlInstall)->click();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, u"\"RoamlyBroken.dll\" is not a language module.");
    EXPECT_TRUE(CanInstall(*page, 2));
    page->Control<QCheckBox>(kControlRemoveAfterInstall)->setChecked(true);
    page->Control<QPushButton>(kControlInstall)->click();
    EXPECT_EQ(boxes.shown.back().text, u"Pseudo is installed.");
    EXPECT_EQ(Rows(*page), QStringList({"RoamlyBroken.dll", "RoamlyFrench.dll (INSTALLED)"})) << "moved";
    EXPECT_EQ(home.Get("langs.dat"), "0,English,none@1,French,RoamlyFrench.dll@2,Pseudo,RoamlyPseudo.dll@>");
    browsed = home / "LangsRes";
    page->Control<QPushButton>(kControlBrowse)->click();
    EXPECT_EQ(Rows(*page), QStringList({"RoamlyPseudo.dll (INSTALLED)"}));
    EXPECT_EQ(page->Control<QLineEdit>(kControlModuleFolder)->text().toStdString(), browsed.string());
}

TEST_F(LanguageDialogs, FolderWithoutModulesSaysSo) {
    const auto page = OpenPage();
    browsed = home.Path();
    page->Control<QPushButton>(kControlBrowse)->click();
    EXPECT_EQ(Rows(*page), QStringList({"No language modules in this folder"}));
    EXPECT_FALSE(CanInstall(*page, 0));
    browsed.clear();  // called off
    page->Control<QPushButton>(kControlBrowse)->click();
    EXPECT_EQ(page->Folder(), home.Path());
}

}  // namespace
}  // namespace rlx
