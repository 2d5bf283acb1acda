#include "skins/skin_validator.h"

#include "skins/skin_files.h"

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
        {"no colour", "TLC@255\r\n", "", {{Kind::kKeyMissing, u"Tools", u"TLC", u""}}},
        {"negative colour", "DLC@255", "DLC@-255", {{Kind::kNotAColour, u"Map", u"DLC", u"-255"}}},
        {"colour beyond 32 bits", "DLC@255", "DLC@4294967296", {{Kind::kNotAColour, u"Map", u"DLC", u"4294967296"}}},
        {"colour with a bare line feed", "DLC@255\r\n", "DLC@2\n", {{Kind::kNotAColour, u"Map", u"DLC", u""}}},
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

}  // namespace
}  // namespace rlx
