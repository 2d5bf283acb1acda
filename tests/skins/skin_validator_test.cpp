#include "skins/skin_validator.h"

#include <algorithm>

#include "base/text.h"
#include "platform/posix/posix_file_system.h"
#include "shell/resources.h"
#include "skins/skin_files.h"
#include "skins/skin_list.h"
#include "support/paths.h"

namespace rlx {
namespace {

using Kind = SkinFaultKind;

TEST(SkinValidator, BrokenSkins) {
    const struct {
        const char* name;
        const char* from;
        const char* to;
        std::vector<SkinFault> faults;
    } rows[] = {
        {"sound", "[Map]", "[Map]", {}},
        {"no section", "[Currency]", "[Money]", {{Kind::kSectionMissing, u"Currency", u"", u""}}},
        {"no name", "N@Mine\r\n", "", {{Kind::kKeyMissing, u"Description", u"N", u""}}},
        {"no colour", "TLC@255\r\n", "", {{Kind::kKeyMissing, u"Tools", u"TLC", u""}}},
        {"colour in words", "DLC@255", "DLC@red", {{Kind::kNotAColour, u"Map", u"DLC", u"red"}}},
        {"negative colour", "DLC@255", "DLC@-255", {{Kind::kNotAColour, u"Map", u"DLC", u"-255"}}},
        {"colour beyond 32 bits", "DLC@255", "DLC@4294967296", {{Kind::kNotAColour, u"Map", u"DLC", u"4294967296"}}},
        {"colour with a bare line feed", "DLC@255\r\n", "DLC@2\n", {{Kind::kNotAColour, u"Map", u"DLC", u""}}},
        {"colour of the editor alone", "BKC@255\r\n", "", {}},
        {"icon folder missing",
         "WICOF@default",
         "WICOF@\\ice",
         {{Kind::kFolderMissing, u"Weather", u"WICOF", u"\\ice"}}},
        {"icon folder there", "WICOF@default", "WICOF@\\P", {}},
        {"picture of IF missing, folder there", "IF@\\P\\any.jpg", "IF@\\S\\none.jpg", {}},
        {"folder of IF missing", "\\P\\any.jpg", "\\Q\\any.jpg", {{Kind::kFolderMissing, u"General", u"IF", u"\\Q"}}},
        {"leaves the folder",
         "BC@\\pic.jpg",
         "BC@\\..\\pic.jpg",
         {{Kind::kLeavesFolder, u"Tools", u"BC", u"\\P\\..\\pic.jpg"}}},
        {"no backslash", "MI@\\pic.jpg", "MI@pic.jpg", {{Kind::kNoBackslash, u"Map", u"MI", u"pic.jpg"}}},
        {"picture missing", "MI@\\pic.jpg", "MI@\\map.jpg", {{Kind::kFileMissing, u"Map", u"MI", u"\\P\\map.jpg"}}},
        {"folder is a file",
         "L@\\L",
         "L@\\P\\pic.jpg",
         {{Kind::kFolderMissing, u"Common Folders", u"L", u"\\P\\pic.jpg"},
          {Kind::kFileMissing, u"Clocks", u"BL", u"\\P\\pic.jpg\\pic.jpg"},
          {Kind::kFileMissing, u"Weather", u"BL", u"\\P\\pic.jpg\\pic.jpg"},
          {Kind::kFileMissing, u"Map", u"BL", u"\\P\\pic.jpg\\pic.jpg"}}},
        {"cut by a smaller-than sign", "[Tools]", "<[Tools]", {{Kind::kSectionMissing, u"Tools", u"", u""}}},
    };
    for (const auto& row : rows) {
        auto files = test::FilesWith(test::Replaced(test::SoundSkin(), row.from, row.to));
        EXPECT_EQ(ValidateSkin(files, "/skins/mine.skn"), row.faults) << row.name;
    }
}

TEST(SkinValidator, RunsAllChecks) {
    CMemoryFileSystem files;
    EXPECT_EQ(ValidateSkin(files, "/skins/mine.skn"), (std::vector<SkinFault>{{Kind::kFileNotOpened, {}, {}, {}}}));
    files.files["/skins/mine.skn"] = "";
    EXPECT_EQ(ValidateSkin(files, "/skins/mine.skn").size(), kSkinSectionNames.size());
    files.files["/skins/mine.skn"] = test::SoundSkin();
    // Three folders, IF, and fourteen pictures.
    EXPECT_EQ(ValidateSkin(files, "/skins/mine.skn").size(), 3U + 1U + 9U + 1U + 4U);
}

TEST(SkinValidator, FaultsReadAsOneLine) {
    const CResources texts;
    EXPECT_EQ(FaultText({Kind::kNotAColour, u"Map", u"DLC", u"a%1\r\nb"}, texts),
              u"[Map] DLC: \"a%1  b\" is not a colour (a number from 0 to 4294967295).");
    EXPECT_EQ(FaultText({Kind::kSectionMissing, u"Tools", {}, {}}, texts), u"Section [Tools] is missing.");
}

TEST(SkinValidator, ShippedSkinsAreValid) {
    CPosixFileSystem files;
    const CResources texts;
    const std::filesystem::path data = test::kDataDir;
    EXPECT_EQ(ValidateSkin(files, data / "default.skn"), std::vector<SkinFault>{});
    const auto skins = ListSkins(files, data / "skins", texts);
    ASSERT_EQ(skins.size(), 1U);
    EXPECT_EQ(skins[0].text, u"Night");
    EXPECT_EQ(skins[0].faults, std::vector<SkinFault>{});
}

TEST(SkinList, NamesEverySkinAndSaysWhenThereAreNone) {
    const CResources texts;
    auto files = test::FilesWith(test::SoundSkin());
    files.files["/skins/broken.SKN"] = "[Map]";
    files.files["/skins/readme.txt"] = files.files["/skins/.skn"] = "";
    files.files["/skins/Own/own.skn"] = "[Description]\r\nN@Caf\xE9\r\n>*";
    const auto skins = ListSkins(files, "/skins", texts);
    ASSERT_EQ(skins.size(), 3U);
    EXPECT_EQ(skins[0].text, u"broken.SKN");
    EXPECT_FALSE(skins[0].faults.empty());
    EXPECT_EQ(skins[1].text, u"Mine");
    EXPECT_EQ(skins[1].faults, std::vector<SkinFault>{});
    EXPECT_EQ(skins[2].text, u"Caf\u00E9");
    const auto none = ListSkins(files, "/skins/P", texts);
    ASSERT_EQ(none.size(), 1U);
    EXPECT_EQ(none[0].text, u"No skins available in this Directory");
    EXPECT_TRUE(none[0].file.empty());
}

}  // namespace
}  // namespace rlx
