#include "shell/application_folder.h"

#include "platform/fake/memory_file_system.h"

namespace rlx {
namespace {

TEST(ApplicationFolderTest, DeviceNamesBecomeHostPaths) {
    CMemoryFileSystem files;
    for (const char* name : {"/app/cities.lst", "/app/Portrait/dial.jpg", "/app/portrait/map.jpg", "/app/Grün/ä.skn"}) {
        files.files[name] = "";
    }
    const CApplicationFolder folder(files, "/app");
    const struct {
        const char* name;
        std::u16string_view device;
        const char* host;
    } rows[] = {
        {"leading separator", u"\\cities.lst", "/app/cities.lst"},
        {"other case", u"\\Cities.LST", "/app/cities.lst"},
        {"other case in folder and file", u"\\PORTRAIT\\Dial.JPG", "/app/Portrait/dial.jpg"},
        {"host's separator", u"Portrait/dial.jpg", "/app/Portrait/dial.jpg"},
        {"doubled separator inside", u"\\Portrait\\\\dial.jpg", "/app/Portrait/dial.jpg"},
        {"beyond ASCII, other case", u"\\GRÜN\\Ä.skn", "/app/Grün/ä.skn"},
        {"a file to be made in a folder", u"\\PORTRAIT\\new.jpg", "/app/Portrait/new.jpg"},
        {"nothing", u"", "/app"},
    };
    for (const auto& row : rows) {
        const auto path = folder.Path(row.device);
        ASSERT_TRUE(path) << row.name;
        EXPECT_EQ(path->string(), row.host) << row.name;
    }
}

TEST(ApplicationFolderTest, NamesThatLeadOutsideAreRefused) {
    CMemoryFileSystem files;
    files.files["/app/a/b"] = "";
    files.files["/etc/passwd"] = "";
    const CApplicationFolder folder(files, "/app");
    const std::u16string_view refused[] = {
        u"..",          u"\\..",          u"\\..\\etc\\passwd", u"a\\..\\..\\etc", u"a/../../etc", u"\\a\\..\\a\\b",
        u"/etc/passwd", u"\\/etc/passwd", u"\\\\server\\share", u"//server/share", u"C:\\x",       u"\\c:x",
        u"a\\..",       {u"a\0b", 3},     {u"\\a\\b\0", 5},
    };
    for (const auto& name : refused) {
        EXPECT_FALSE(folder.Path(name)) << std::string(name.begin(), name.end());
    }
}

TEST(ApplicationFolderTest, ChoiceFollowsOptionEnvironmentProgramUser) {
    const FolderSources all{"/option", "/environment", "/program", "/user", "/installed"};
    FolderSources noOption = all;
    noOption.option.clear();
    FolderSources neither = noOption;
    neither.environment.clear();
    EXPECT_EQ(ChooseApplicationFolder(all, true), (FolderChoice{"/option", false}));
    EXPECT_EQ(ChooseApplicationFolder(noOption, true), (FolderChoice{"/environment", false}));
    EXPECT_EQ(ChooseApplicationFolder(neither, true), (FolderChoice{"/program", false}));
    EXPECT_EQ(ChooseApplicationFolder(neither, false), (FolderChoice{"/user", true}));
}

struct Installed : public testing::Test {
    Installed() {
        files.files = {{"/usr/bin/rlx", ""},
                       {"/usr/share/roamlytix/cities.lst", "new cities"},
                       {"/usr/share/roamlytix/LangsRes/RoamlyFrench.dll", "module"},
                       {"/usr/share/roamlytix/skins/Night/Night.skn", "night"}};
        files.readOnly = {"/usr/bin", "/usr/share/roamlytix"};
        files.folders = {"/home/u"};
    }
    CMemoryFileSystem files;
    FolderSources sources{"", "", "/usr/bin", "/home/u/roamlytix", "/usr/share/roamlytix"};
};

TEST_F(Installed, UserCopyIsFilledWithWhatItLacks) {
    files.files["/home/u/roamlytix/cities.lst"] = "edited cities";
    EXPECT_EQ(PrepareApplicationFolder(files, sources), "/home/u/roamlytix");
    EXPECT_EQ(files.files["/home/u/roamlytix/cities.lst"], "edited cities");
    EXPECT_EQ(files.files["/home/u/roamlytix/skins/Night/Night.skn"], "night");
    EXPECT_EQ(files.files["/home/u/roamlytix/LangsRes/RoamlyFrench.dll"], "module");
    EXPECT_FALSE(files.files.contains("/home/u/roamlytix/rlx"));
}

TEST_F(Installed, FailuresAreTold) {
    files.readOnly.insert("/home/u");
    EXPECT_EQ(PrepareApplicationFolder(files, sources), std::nullopt) << "the folder cannot be made";
    files.readOnly.erase("/home/u");
    files.readOnly.insert("/home/u/roamlytix");
    EXPECT_EQ(PrepareApplicationFolder(files, sources), std::nullopt) << "a file cannot be copied";
    sources.option = "/nowhere";
    EXPECT_EQ(PrepareApplicationFolder(files, sources), std::nullopt) << "the option names no folder";
}

TEST_F(Installed, PortableFolderNeedsCitiesAndWriting) {
    files.files["/opt/r/cities.lst"] = "";
    sources.executableFolder = "/opt/r";
    EXPECT_EQ(PrepareApplicationFolder(files, sources), "/opt/r");
    files.readOnly.insert("/opt/r");
    EXPECT_EQ(PrepareApplicationFolder(files, sources), "/home/u/roamlytix");
}

}  // namespace
}  // namespace rlx
