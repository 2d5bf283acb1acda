#include "base/text.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_registry.h"
#include "shell/english_image.h"
#include "shell/language_install.h"
#include "shell/language_start.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"

namespace rlx {
namespace {

/// The bytes of a sound module.
std::string Module() {
    const auto image = EnglishImage();
    return {reinterpret_cast<const char*>(image.data()), image.size()};
}

std::string Listed(const CLanguageList& list) {
    std::string lines;
    for (const Language& language : list.Languages()) {
        lines += std::to_string(language.index) + "|" + ToUtf8(language.name) + "|" + ToUtf8(language.module) + "\n";
    }
    return lines;
}

TEST(LanguageListTest, StartTakesTheFirstPlaceThatTheIndexStandsAt) {
    const struct {
        const char* name;
        const char16_t* text;
        std::uint32_t lang;
        const char16_t* module;
    } rows[] = {
        {"its own entry", u"0,English,none@1,French,RoamlyFrench.dll@", 1, u"RoamlyFrench.dll"},
        {"a digit in an earlier name", u"0,English 1,none@1,French,RoamlyFrench.dll@", 1, u"none"},
        {"part of a longer index", u"0,English,none@12,A,RoamlyA.dll@2,B,RoamlyB.dll@", 2, u"RoamlyA.dll"},
        {"beyond ASCII", u"1,\u00C3\u00A9,Roamly\u00C3\u00A9.dll@", 1, u"Roamly\u00E9.dll"},
        {"not in the list", u"0,English,none@1,French,RoamlyFrench.dll@", 7, u""},
        {"an empty list", u"", 1, u""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ToUtf8(CLanguageList(row.text).ModuleAtStart(row.lang)), ToUtf8(row.module)) << row.name;
}

TEST(LanguageListTest, AddedLanguageKeepsWhatAHandWrote) {
    const struct {
        const char* name;
        const char16_t* text;
        const char* listed;
        const char* bytes;
    } rows[] = {
        {"lines and a note between", u"0,English,none@\r\n(mine)@\r\n", "0|English|none\n1|French|RoamlyFrench.DLL\n",
         "0,English,none@\r\n(mine)@\r\n1,French,RoamlyFrench.DLL@>"},
        {"the last @ is missing", u"0,English,none", "0|English|none\n1|French|RoamlyFrench.DLL\n",
         "0,English,none@1,French,RoamlyFrench.DLL@>"},
        {"entries that are none", u"x,A,a.dll@-1,B,b.dll@0,C@,,@", "0|French|RoamlyFrench.DLL\n",
         "x,A,a.dll@-1,B,b.dll@0,C@,,@0,French,RoamlyFrench.DLL@>"},
    };
    for (const auto& row : rows) {
        const auto longer = CLanguageList(row.text).With(u"RoamlyFrench.DLL");
        ASSERT_TRUE(longer) << row.name;
        EXPECT_EQ(Listed(*longer), row.listed) << row.name;
        EXPECT_EQ(longer->Bytes(), row.bytes) << row.name;
    }
    const std::size_t added = std::string("0,A,RoamlyA.dll@").size();
    EXPECT_TRUE(CLanguageList(std::u16string(1498 - added, u' ') + u"@").With(u"RoamlyA.dll"));
    EXPECT_FALSE(CLanguageList(std::u16string(1499 - added, u' ') + u"@").With(u"RoamlyA.dll"));
}

/// A device with two modules in the application folder, one of them sound, and a folder with more.
class Languages : public testing::Test {
protected:
    Languages() {
        files.files["/app/langs.dat"] = kList;
        files.files["/app/LangsRes/RoamlyGood.dll"] = Module();
        files.files["/app/LangsRes/RoamlyBad.dll"] = "MZ";
        files.files["/app/RoamlyAbove.dll"] = Module();
        files.files["/card/RoamlyNew.dll"] = Module();
        files.files["/card/RoamlyBad.dll"] = Module().substr(0, 3000);
        files.files["/card/roamlynumbers.DLL"] = Module();
        files.files["/card/RoamlyNew.dll.bak"] = "";
        files.files["/card/Roamly.txt"] = "";
        files.files["/card/MyRoamlyNew.dll"] = "";
        files.files["/card/RoamlyA,B.dll"] = Module();
        files.files["/card/RoamlyA@B.dll"] = Module();
        files.files["/card/RoamlyA>B.dll"] = Module();
        files.files["/card/Roamly.dll"] = Module();
        files.files["/card/RoamlyHuge.dll"] = Module() + std::string(std::size_t{4} << 20U, ' ');
    }

    LanguageState Start(std::uint32_t lang) { return StartLanguage(files, folder, lang).state; }

    InstallOutcome Install(const char16_t* module, bool remove = false, std::filesystem::path from = "/card",
                           std::u16string inUse = {}) {
        return InstallLanguage(files, folder, texts, {std::move(from), module, remove, std::move(inUse)});
    }

    std::string List() { return files.ReadFile("/app/langs.dat", 9999).value_or("missing"); }

    static constexpr const char* kList =
        "0,English,none@1,Good,RoamlyGood.dll@2,Bad,RoamlyBad.dll@3,Gone,RoamlyGone.dll@4,Up,..\\RoamlyAbove.dll@"
        "5,Root,\\RoamlyGood.dll@6,None,none@>";

    CFailurePlan writes;
    CMemoryFileSystem files{writes};
    CApplicationFolder folder{files, "/app"};
    CResources texts;
};

TEST_F(Languages, StartKnowsWhatToDo) {
    const struct {
        const char* name;
        std::uint32_t lang;
        LanguageState state;
    } rows[] = {
        {"built in", 0, LanguageState::kBuiltIn},
        {"a module", 1, LanguageState::kModule},
        {"a file that is no module", 2, LanguageState::kFailed},
        {"a file that is gone", 3, LanguageState::kFailed},
        {"a file outside", 4, LanguageState::kFailed},
        {"none by its name", 6, LanguageState::kBuiltIn},
        {"not listed", 7, LanguageState::kFailed},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Start(row.lang), row.state) << row.name;

    CMemoryRegistry registry;
    CRegistryStore settings(registry);
    EXPECT_EQ(StartLanguage(files, folder, settings).state, LanguageState::kAskFirst) << "no key";
    settings.WriteDword(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kCurrentTab, 0);
    EXPECT_EQ(StartLanguage(files, folder, settings).state, LanguageState::kAskFirst) << "no value";
    settings.WriteString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kLanguage, u"1");
    EXPECT_EQ(StartLanguage(files, folder, settings).state, LanguageState::kAskFirst) << "not a number";
    EXPECT_TRUE(WriteLanguageSetting(settings, 1));
    EXPECT_EQ(StartLanguage(files, folder, settings).state, LanguageState::kModule);

    files.RemoveFile("/app/langs.dat");
    EXPECT_EQ(Start(0), LanguageState::kBuiltIn);
    EXPECT_EQ(Start(1), LanguageState::kFailed);
    EXPECT_EQ(Listed(*ReadLanguageList(files, folder, texts)), "0|English|none\n");
}

TEST_F(Languages, RefusedModulesChangeNothing) {
    files.files["/card/RoamlyBroken.dll"] = Module().substr(0, 3000);
    const struct {
        const char* name;
        const char16_t* module;
        InstallOutcome outcome;
    } rows[] = {
        {"damaged", u"RoamlyBroken.dll", InstallOutcome::kNotAModule},
        {"over 4 MB", u"RoamlyHuge.dll", InstallOutcome::kNotReadable},
        {"gone since it was listed", u"RoamlyGone2.dll", InstallOutcome::kNotReadable},
        {"listed", u"ROAMLYGOOD.dll", InstallOutcome::kAlreadyInstalled},
        {"end of an entry", u"RoamlyA@B.dll", InstallOutcome::kNameRefused},
        {"no language", u"Roamly.dll", InstallOutcome::kNameRefused},
        {"a way out", u"Roamly/../RoamlyNew.dll", InstallOutcome::kNameRefused},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Install(row.module, true), row.outcome) << row.name;
        EXPECT_EQ(List(), kList) << row.name;
        EXPECT_NE(InstallMessage(row.outcome, {"/card", row.module, true, {}}, texts), u"") << row.name;
    }
    EXPECT_EQ(files.ListFiles("/app/LangsRes").size(), 2U);
    EXPECT_EQ(files.ListFiles("/card").size(), 12U);
}

TEST_F(Languages, ModuleFolderItselfIsOnlyListed) {
    files.files["/app/LangsRes/RoamlyNew.dll"] = Module();
    EXPECT_EQ(Install(u"RoamlyNew.dll", true, "/app/./LangsRes", u"RoamlyNew.dll"), InstallOutcome::kInUse);
    EXPECT_EQ(List(), kList);
    EXPECT_EQ(Install(u"RoamlyNew.dll", true, "/app/./LangsRes"), InstallOutcome::kInstalled);
    EXPECT_TRUE(files.IsFile("/app/LangsRes/RoamlyNew.dll"));
    EXPECT_EQ(Start(7), LanguageState::kModule);
}

/// Each write in turn is refused: of the module, the list, the removal.
TEST_F(Languages, FailedWritesLeaveEverythingAsItWas) {
    files.files["/app/LangsRes/RoamlyNew.dll"] = "not listed";
    for (int write = 1; write <= 2; ++write) {
        writes.FailAt(write);
        EXPECT_EQ(Install(u"RoamlyNew.dll", true), InstallOutcome::kNotSaved) << write;
        EXPECT_EQ(List(), kList) << write;
        EXPECT_EQ(files.ReadFile("/app/LangsRes/RoamlyNew.dll", 99), "not listed") << write;
        EXPECT_TRUE(files.IsFile("/card/RoamlyNew.dll")) << write;
    }
    writes.FailAt(3);
    EXPECT_EQ(Install(u"RoamlyNew.dll", true), InstallOutcome::kNotRemoved);
    EXPECT_TRUE(files.IsFile("/card/RoamlyNew.dll"));
    EXPECT_EQ(Start(7), LanguageState::kModule);
}

TEST_F(Languages, FoldersThatCannotBeWrittenAreNamed) {
    files.readOnly.insert("/card");
    EXPECT_EQ(Install(u"RoamlyNew.dll", true), InstallOutcome::kNotRemovable);
    EXPECT_FALSE(files.IsFile("/app/LangsRes/RoamlyNew.dll"));
    files.readOnly.insert("/app");
    EXPECT_EQ(Install(u"RoamlyNew.dll"), InstallOutcome::kNotSaved);
    EXPECT_FALSE(files.IsFile("/app/LangsRes/RoamlyNew.dll"));
    EXPECT_EQ(List(), kList);
}

}  // namespace
}  // namespace rlx
