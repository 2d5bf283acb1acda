#include "platform/fake/scripted_message_boxes.h"
#include "platform/image/image_codec.h"
#include "platform/posix/posix_file_system.h"
#include "shell/control_ids.h"
#include "skins/skin_loader.h"
#include "skins/ui/colour_picker.h"
#include "skins/ui/skin_chooser.h"
#include "skins/ui/skin_editor.h"
#include "support/paths.h"
#include "support/temp_folder.h"
#include "uikit/look.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

/// An application folder with the shipped skins, one of them broken.
class SkinDialogs : public ::testing::Test {
protected:
    SkinDialogs() {
        namespace fs = std::filesystem;
        const fs::path data(test::kDataDir);
        for (const char* name : {"Portrait", "Landscape", "Square", "wiconsets"})
            fs::create_directory_symlink(data / name, folder / name);
        fs::copy_file(data / "map.jpg", folder / "map.jpg");
        fs::copy_file(data / "default.skn", folder / "default.skn");
        fs::create_directories(folder / "skins");
        fs::create_directory_symlink(data / "skins/Night", folder / "skins/Night");
        broken = folder.Get("default.skn");
        broken.replace(broken.find("PTC@"), 4, "XTC@").replace(broken.find("Default"), 7, "Broken ");
        folder.Put("skins/Old/old.skn", broken);
        look.SetSkin(Loaded());
    }

    /// As the program starts: the skin of the setting.
    CSkin Loaded() {
        CSkinLoader loader(files, folder.Path(), resources, boxes, [this](auto value) { setting = value; });
        return loader.Load(setting);
    }

    SkinActions Actions() {
        return {[this](const std::u16string& chosen) {
                    setting = chosen;
                    look.SetSkin(Loaded());
                },
                [this](const std::filesystem::path& kept) { keptFolder = kept; },
                [this](QWidget*, const std::filesystem::path&) { return browsed; }};
    }

    void Choose(CSkinChooser& chooser, const QString& name) {
        auto* list = chooser.Control<QListWidget>(kControlSkinList);
        list->setCurrentItem(list->findItems(name, Qt::MatchStartsWith).value(0));
        chooser.Control<QPushButton>(kControlOk)->click();
    }

    std::unique_ptr<CSkinEditor> OpenEditor() {
        SkinStage stage{[this](const CSkin& skin) { look.SetSkin(skin); }, [](SkinSection) { return QPixmap(); }};
        auto draft = CSkinDraft::Open(files, folder / "default.skn", true);
        auto editor = std::make_unique<CSkinEditor>(ports, *std::move(draft), std::move(stage));
        editor->show();
        return editor;
    }

    /// Selects a key and presses Change; `act` gets the dialog that comes.
    void Change(CSkinEditor& editor, SkinKey key, const std::function<void(QDialog&)>& act) {
        auto* keys = editor.Control<QTreeView>(kControlSkinKeys);
        keys->setCurrentIndex(static_cast<CSkinKeyModel*>(keys->model())->IndexOf(key));
        bool came = false;
        QTimer::singleShot(0, &editor, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            came = true;
            act(*dialog);
        });
        editor.Control<QPushButton>(kControlSkinChange)->click();
        EXPECT_TRUE(came);
    }

    void PickColour(CSkinEditor& editor, SkinKey key, const char* number) {
        Change(editor, key, [&](QDialog& dialog) {
            auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("control_%1").arg(kControlColourText));
            text->setFocus();
            text->selectAll();
            QTest::keyClicks(text, number);
            dialog.findChild<QPushButton*>(QStringLiteral("control_%1").arg(kControlOk))->click();
        });
    }

    test::CTempFolder folder;
    std::string broken;
    CPosixFileSystem files;
    CImageCodec codec;
    CResources resources;
    CScriptedMessageBoxes boxes;
    CLook look{files, codec};
    SkinPorts ports{files, codec, resources, boxes};
    std::u16string setting = u"default";
    std::filesystem::path keptFolder;
    std::filesystem::path browsed;
};

TEST_F(SkinDialogs, ChosenSkinShowsAtOnceAndAtTheNextStart) {
    const QColor before = look.Panel();
    QSignalSpy changed(&look, &CLook::Changed);
    CSkinChooser chooser(ports, {folder.Path(), {}, setting}, Actions());
    Choose(chooser, "Night");
    EXPECT_EQ(changed.count(), 1);
    EXPECT_NE(look.Panel(), before);
    EXPECT_EQ(setting, FromQString(QString::fromStdString((folder / "skins/Night/night.skn").string())));
    EXPECT_EQ(Loaded(), look.Skin());
    CSkinChooser again(ports, {folder.Path(), {}, setting}, Actions());
    EXPECT_EQ(again.Control<QListWidget>(kControlSkinList)->currentItem()->text(), "Night");
    Choose(again, "Default");
    EXPECT_EQ(setting, u"default");
    EXPECT_EQ(look.Panel(), before);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SkinDialogs, InvalidSkinIsListedWithItsReasonAndRefused) {
    CSkinChooser chooser(ports, {folder.Path(), {}, setting}, Actions());
    chooser.show();
    const auto* item =
        chooser.Control<QListWidget>(kControlSkinList)->findItems("Broken", Qt::MatchStartsWith).value(0);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text(), "Broken (invalid)\n[Common Folders] P: there is no folder \"\\Portrait\".");
    EXPECT_TRUE(item->toolTip().contains("[General] has no line PTC@.\n")) << item->toolTip().toStdString();
    Choose(chooser, "Broken");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, u"Skin description file corrupted or some skin files are missing!");
    EXPECT_EQ(setting, u"default");
    EXPECT_TRUE(chooser.isVisible());
}

TEST_F(SkinDialogs, AnotherFolderIsListedAndKept) {
    std::filesystem::create_directories(folder / "empty");
    CSkinChooser chooser(ports, {folder.Path(), {}, setting}, Actions());
    auto* list = chooser.Control<QListWidget>(kControlSkinList);
    auto* browse = chooser.Control<QPushButton>(kControlSkinBrowse);
    browse->click();  // called off
    EXPECT_EQ(list->count(), 3);
    EXPECT_TRUE(keptFolder.empty());
    browsed = folder / "empty";
    browse->click();
    EXPECT_EQ(keptFolder, browsed);
    EXPECT_EQ(list->item(list->count() - 1)->text(), "No skins available in this Directory");
    browsed = folder / "skins";  // listed already
    browse->click();
    EXPECT_EQ(list->count(), 3);
}

TEST_F(SkinDialogs, EditedColourIsSeenAtOnceAndKeptByOk) {
    const std::string before = folder.Get("default.skn");
    auto editor = OpenEditor();
    PickColour(*editor, SkinKey::kClocksCMDC, "102030");
    EXPECT_EQ(look.Colour(SkinKey::kClocksCMDC), QColor("#102030"));
    EXPECT_EQ(folder.Get("default.skn"), before);
    editor->Control<QPushButton>(kControlOk)->click();
    EXPECT_NE(folder.Get("default.skn").find("CMDC@" + std::to_string(0x302010) + "\r\n"), std::string::npos);
    EXPECT_EQ(Loaded(), look.Skin());
    EXPECT_FALSE(editor->isVisible());
}

TEST_F(SkinDialogs, CancelAndResetPutTheOldLookBack) {
    const CSkin before = look.Skin();
    const std::string text = folder.Get("default.skn");
    auto editor = OpenEditor();
    PickColour(*editor, SkinKey::kMapCNC, "FF0000");
    EXPECT_FALSE(look.Skin() == before);
    editor->Control<QPushButton>(kControlSkinReset)->click();
    EXPECT_EQ(look.Skin(), before);
    EXPECT_FALSE(editor->Control<QPushButton>(kControlSkinReset)->isEnabled());
    PickColour(*editor, SkinKey::kMapCNC, "00FF00");
    editor->Control<QPushButton>(kControlCancel)->click();
    EXPECT_EQ(look.Skin(), before);
    EXPECT_EQ(folder.Get("default.skn"), text);
}

TEST_F(SkinDialogs, EnterOnAKeyChangesItAndSavesNothing) {
    auto editor = OpenEditor();
    auto* keys = editor->Control<QTreeView>(kControlSkinKeys);
    keys->setCurrentIndex(static_cast<CSkinKeyModel*>(keys->model())->IndexOf(SkinKey::kGeneralPC));
    bool came = false;
    QTimer::singleShot(0, editor.get(), [&came] {
        auto* picker = qobject_cast<CColourPicker*>(QApplication::activeModalWidget());
        came = picker != nullptr;
        if (came) picker->accept();
    });
    QTest::keyClick(keys, Qt::Key_Return);
    EXPECT_TRUE(came);
    EXPECT_TRUE(editor->isVisible());
}

TEST_F(SkinDialogs, PicturesAndIconsComeFromTheSkinsFolders) {
    auto editor = OpenEditor();
    const auto pick = [](const char* name) {
        return [name](QDialog& dialog) {
            auto* list = dialog.findChild<QListWidget*>();
            list->setCurrentItem(list->findItems(name, Qt::MatchExactly).value(0));
            dialog.findChild<QPushButton*>(QStringLiteral("control_%1").arg(kControlOk))->click();
        };
    };
    Change(*editor, SkinKey::kClocksBL, pick("weather.jpg"));
    Change(*editor, SkinKey::kGeneralIF, pick("dial.jpg"));
    Change(*editor, SkinKey::kWeatherWICOF, pick("Line"));
    editor->Control<QPushButton>(kControlOk)->click();
    const CSkin skin = Loaded();
    EXPECT_EQ(skin.Value(SkinKey::kClocksBL), u"\\weather.jpg");
    EXPECT_EQ(skin.Value(SkinKey::kGeneralIF), u"\\Portrait\\dial.jpg");
    EXPECT_EQ(skin.Value(SkinKey::kWeatherWICOF), u"\\wiconsets\\Line");
    EXPECT_TRUE(ValidateSkin(files, folder / "default.skn").empty());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SkinDialogs, RefusalIsToldAndNothingIsWritten) {
    std::string text = folder.Get("default.skn");
    text.insert(text.find("[Tools]"), std::string(1499 - text.size(), 'x'));  // at the limit
    folder.Put("default.skn", text);
    auto editor = OpenEditor();
    PickColour(*editor, SkinKey::kClocksCMD, "FFFFFF");  // one digit more
    editor->Control<QPushButton>(kControlOk)->click();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, u"The skin would be longer than 1,499 characters and was not saved.");
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(folder.Get("default.skn"), text);
}

/// The number follows the mark.
TEST_F(SkinDialogs, ColourFollowsHandAndKeys) {
    std::vector<QColor> followed;
    CColourPicker picker(resources, "Panels", QColor("#336699"), [&](const QColor& c) { followed.push_back(c); });
    picker.show();
    auto* field = picker.findChild<CColourField*>();
    ASSERT_NE(field, nullptr);
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(field->width() - 1, 0));
    EXPECT_EQ(picker.Colour().rgb(), QColor::fromHsv(210, 255, 255).rgb());
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_EQ(picker.Colour().rgb(), QColor::fromHsv(210, 255, 250).rgb());
    EXPECT_EQ(followed.size(), 2U);
    const auto* text = picker.Control<QLineEdit>(kControlColourText);
    EXPECT_EQ('#' + text->text().toLower(), picker.Colour().name());
}

}  // namespace
}  // namespace rlx
