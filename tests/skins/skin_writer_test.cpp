#include "skins/skin_writer.h"

#include "platform/fake/scripted_message_boxes.h"
#include "shell/resources.h"
#include "skins/skin.h"
#include "skins/skin_file.h"
#include "skins/skin_files.h"
#include "skins/skin_loader.h"
#include "skins/skin_validator.h"

namespace rlx {
namespace {

constexpr const char* kSkin = "/skins/mine.skn";

TEST(SkinWriter, ReplacesNothingButTheLinesGiven) {
    auto files = test::FilesWith(test::SoundSkin());
    CSkinEdit edit;
    edit.SetColour(SkinKey::kClocksCMD, 0xFFFFFF);
    edit.SetColour(SkinKey::kToolsPBCP, 0);
    edit.SetPicture(SkinKey::kWeatherBL, u"/home/me/Pictures/pic.jpg");
    edit.SetPicture(SkinKey::kGeneralIF, u"\\L\\pic.jpg");
    edit.SetPicture(SkinKey::kMapMI, u"\\other.jpg");
    edit.SetIconSet(u"\\wiconset\\");
    const auto result = WriteSkin(files, kSkin, edit, false);
    EXPECT_EQ(result.status, SkinWriteStatus::kWritten);
    std::string expected = test::Replaced(test::SoundSkin(), "CMD@255", "CMD@16777215");
    expected = test::Replaced(expected, "PBCP@255", "PBCP@0");
    expected = test::Replaced(expected, "IF@\\P\\any.jpg", "IF@\\L\\pic.jpg");
    EXPECT_EQ(files.files[kSkin], expected);
    EXPECT_EQ(ValidateSkin(files, kSkin), std::vector<SkinFault>{});
    EXPECT_FALSE(files.files.contains("/skins/mine.skn.bak"));
}

TEST(SkinWriter, IconSets) {
    const struct {
        const char16_t* chosen;
        bool defaultSkin;
        const char16_t* value;
    } rows[] = {
        {u"\\wiconset\\", false, u"default"},
        {u"\\snow", false, u"\\snow"},
        {u"\\wiconset\\", true, u"\\wiconset\\"},
    };
    for (const auto& row : rows) {
        auto files = test::FilesWith(test::SoundSkin());
        CSkinEdit edit;
        edit.SetIconSet(row.chosen);
        ASSERT_EQ(WriteSkin(files, kSkin, edit, row.defaultSkin).status, SkinWriteStatus::kWritten);
        EXPECT_EQ(CSkin(*ReadSkinText(files, kSkin), "/skins").Value(SkinKey::kWeatherWICOF), row.value);
    }
}

TEST(SkinWriter, SectionsEndAtAnyBracket) {
    std::vector<SkinKey> found;
    const std::map<SkinKey, std::u16string> lines = {{SkinKey::kClocksBP, u"BP@\\n"}, {SkinKey::kClocksCMD, u"CMD@5"}};
    EXPECT_EQ(
        RewriteSkin("BP@0\n[Clocks]\nBP@1\n;[x]\nCMD@2\n[Map]\r\nBP@3\r\n[Clocks]\r\nCMDC@4\r\nCMD@5", lines, found),
        "BP@0\n[Clocks]\nBP@\\n\r\n;[x]\nCMD@2\n[Map]\r\nBP@3\r\n[Clocks]\r\nCMDC@4\r\nCMD@5");
    EXPECT_EQ(found, (std::vector<SkinKey>{SkinKey::kClocksBP, SkinKey::kClocksCMD}));
}

TEST(SkinWriter, RefusesWhatWouldBreakTheFile) {
    const std::string old = test::SoundSkin();
    const struct {
        const char* name;
        std::u16string picture;
        SkinWriteStatus status;
    } rows[] = {
        {"ends the section", u"\\a>b.jpg", SkinWriteStatus::kBadValue},
        {"begins a line", u"\\a\nN@b", SkinWriteStatus::kBadValue},
    };
    for (const auto& row : rows) {
        auto files = test::FilesWith(old);
        CSkinEdit edit;
        edit.SetPicture(SkinKey::kGeneralIF, row.picture);
        EXPECT_EQ(WriteSkin(files, kSkin, edit, false).status, row.status) << row.name;
        EXPECT_EQ(files.files[kSkin], old) << row.name;
    }
    // Exactly as long as readers read.
    auto files = test::FilesWith(old);
    CSkinEdit edit;
    const std::size_t room = 1499 - old.size() + std::string("\\P\\any.jpg").size();
    edit.SetPicture(SkinKey::kGeneralIF, std::u16string(room, u'a'));
    EXPECT_EQ(WriteSkin(files, kSkin, edit, false).status, SkinWriteStatus::kWritten);
    edit.SetPicture(SkinKey::kGeneralIF, std::u16string(room + 1, u'a'));
    EXPECT_EQ(WriteSkin(files, kSkin, edit, false).status, SkinWriteStatus::kTooLong);
}

TEST(SkinWriter, DamagedFilesAreKept) {
    const std::string old = test::Replaced(test::SoundSkin(), "BKC@255\r\n", "");
    auto files = test::FilesWith(old);
    CSkinEdit edit;
    edit.SetColour(SkinKey::kCurrencyBKC, 1);
    edit.SetColour(SkinKey::kCurrencyPBC, 2);
    const auto result = WriteSkin(files, kSkin, edit, false);
    EXPECT_EQ(result.status, SkinWriteStatus::kWritten);
    EXPECT_EQ(result.linesMissing, std::vector<SkinKey>{SkinKey::kCurrencyBKC});
    EXPECT_EQ(files.files["/skins/mine.skn.bak"], old);
    EXPECT_EQ(files.files[kSkin], test::Replaced(old, "PBC@255", "PBC@2"));
}

TEST(SkinLoader, FallsBackAndSaysSo) {
    const std::u16string selected = u"Skin File corrupted or not found!\n\nDefault skin will be used.";
    const std::u16string reinstall = u"Default Skin file corrupted or not found!\n\nPlease reinstall Default skin.";
    const struct {
        const char* name;
        const char16_t* setting;
        bool defaultThere;
        std::vector<std::u16string> shown;
        std::vector<std::u16string> written;
        const char* folder;
    } rows[] = {
        {"default", u"default", true, {}, {}, "/app"},
        {"chosen, as the device writes paths", u"\\skins\\mine.skn", true, {}, {}, "/skins"},
        {"both gone", u"/skins/gone.skn", false, {selected, reinstall}, {u"default"}, ""},
        {"default gone", u"default", false, {reinstall}, {}, ""},
    };
    const CResources texts;
    for (const auto& row : rows) {
        auto files = test::FilesWith(test::SoundSkin());
        if (row.defaultThere) files.files["/app/default.skn"] = test::SoundSkin();
        CScriptedMessageBoxes boxes;
        std::vector<std::u16string> written;
        CSkinLoader loader(files, "/app", texts, boxes, [&](std::u16string_view text) { written.emplace_back(text); });
        EXPECT_EQ(loader.Load(row.setting).Folder(), row.folder) << row.name;
        ASSERT_EQ(boxes.shown.size(), row.shown.size()) << row.name;
        for (std::size_t i = 0; i < row.shown.size(); ++i)
            EXPECT_EQ(boxes.shown[i], (MessageBox{u"Error!", row.shown[i], BoxIcon::kExclamation, BoxButtons::kOk}))
                << row.name;
        EXPECT_EQ(written, row.written) << row.name;
    }
}

}  // namespace
}  // namespace rlx
