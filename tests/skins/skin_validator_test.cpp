#include "skins/skin_validator.h"

#include "base/text.h"
#include "shell/resources.h"
#include "skins/skin_files.h"

namespace rlx {
namespace {

TEST(SkinValidator, BrokenSkins) {
    const struct {
        const char* name;
        const char* from;
        const char* to;
        const char* faults;
    } rows[] = {
        {"sound", "[Map]", "[Map]", ""},
        {"no section", "[Currency]", "[Money]", "Section [Currency] is missing.\n"},
        {"no colour", "TLC@255\r\n", "", "[Tools] has no line TLC@.\n"},
        {"colour beyond 32 bits", "DLC@255", "DLC@4294967296",
         "[Map] DLC: \"4294967296\" is not a colour (a number from 0 to 4294967295).\n"},
        {"folder of IF missing", "\\P\\any.jpg", "\\Q\\any.jpg", "[General] IF: there is no folder \"\\Q\".\n"},
        {"leaves the folder", "BC@\\pic.jpg", "BC@\\..\\pic.jpg",
         "[Tools] BC: \"\\P\\..\\pic.jpg\" leads out of the folder of the skin.\n"},
        {"no backslash", "MI@\\pic.jpg", "MI@pic.jpg", "[Map] MI: \"pic.jpg\" must begin with a backslash.\n"},
        {"folder is a file", "L@\\L", "L@\\P\\pic.jpg",
         "[Common Folders] L: there is no folder \"\\P\\pic.jpg\".\n"
         "[Clocks] BL: there is no file \"\\P\\pic.jpg\\pic.jpg\".\n"
         "[Weather] BL: there is no file \"\\P\\pic.jpg\\pic.jpg\".\n"
         "[Map] BL: there is no file \"\\P\\pic.jpg\\pic.jpg\".\n"},
    };
    const CResources texts;
    for (const auto& row : rows) {
        auto files = test::FilesWith(test::Replaced(test::SoundSkin(), row.from, row.to));
        std::string faults;
        for (const SkinFault& fault : ValidateSkin(files, "/skins/mine.skn"))
            faults += ToUtf8(FaultText(fault, texts)) + "\n";
        EXPECT_EQ(faults, row.faults) << row.name;
    }
}

}  // namespace
}  // namespace rlx
