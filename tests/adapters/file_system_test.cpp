#include <sys/stat.h>
#include <unistd.h>

#include "platform/fake/memory_file_system.h"
#include "platform/posix/posix_file_system.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNoLimit = 1 << 24;

/// What every file system must do.
class FileSystemContract : public testing::TestWithParam<const char*> {
protected:
    FileSystemContract() {
        if (std::string_view(GetParam()) == "memory") m_memory.CreateFolder(m_folder.Path());
    }
    IFileSystem& Files() {
        return std::string_view(GetParam()) == "memory" ? static_cast<IFileSystem&>(m_memory) : m_posix;
    }
    fs::path At(std::string_view name) const { return m_folder / name; }

    test::CTempFolder m_folder;

private:
    CMemoryFileSystem m_memory;
    CPosixFileSystem m_posix;
};

TEST_P(FileSystemContract, WholeFilesAreWrittenAndReadWithinALimit) {
    IFileSystem& files = Files();
    const std::string large(200001, 'l');
    for (const std::string& bytes : {std::string(), std::string("a\0b\r\n", 5), large}) {
        EXPECT_TRUE(files.WriteFile(At("f"), bytes));
        EXPECT_EQ(files.ReadFile(At("f"), bytes.size()), bytes);
        if (!bytes.empty()) {
            EXPECT_FALSE(files.ReadFile(At("f"), bytes.size() - 1));
        }
    }
    const auto stream = files.OpenRead(At("f"));
    ASSERT_NE(stream, nullptr);
    files.WriteFile(At("f"), "new");
    std::string read(300000, '\0');
    std::size_t at = 0;
    while (const std::size_t count = stream->Read(read.data() + at, read.size() - at))
        at += count;
    EXPECT_EQ(read.substr(0, at), large) << "an open stream keeps what it opened";
    EXPECT_EQ(files.ListFiles(m_folder.Path()), std::vector<std::string>{"f"}) << "nothing temporary is left";
}

TEST_P(FileSystemContract, WhatIsNotAFileIsRefused) {
    IFileSystem& files = Files();
    ASSERT_TRUE(files.CreateFolder(At("a/b")));
    ASSERT_TRUE(files.WriteFile(At("f"), "x"));
    EXPECT_TRUE(files.CreateFolder(At("a/b")));
    EXPECT_FALSE(files.CreateFolder(At("f/c")));
    for (const char* path : {"a", "none", "none/f", "f/c"}) {
        EXPECT_EQ(files.OpenRead(At(path)), nullptr) << path;
        EXPECT_FALSE(files.ReadFile(At(path), kNoLimit)) << path;
        EXPECT_FALSE(files.IsFile(At(path))) << path;
        EXPECT_FALSE(files.CopyFile(At(path), At("copy"))) << path;
        EXPECT_FALSE(files.MoveFile(At(path), At("moved"))) << path;
    }
    for (const char* path : {"a", "none/f", "f/c"}) {
        EXPECT_FALSE(files.WriteFile(At(path), "y")) << path;
        EXPECT_FALSE(files.CopyFile(At("f"), At(path))) << path;
        EXPECT_FALSE(files.MoveFile(At("f"), At(path))) << path;
    }
    EXPECT_FALSE(files.RemoveFile(At("a")));
    EXPECT_TRUE(files.RemoveFile(At("none/f")));
    EXPECT_TRUE(files.IsFolder(At("a/b")));
    EXPECT_FALSE(files.IsFolder(At("f")));
    EXPECT_TRUE(files.IsWritableFolder(At("a/b")));
    EXPECT_FALSE(files.IsWritableFolder(At("f")));
    EXPECT_EQ(files.ReadFile(At("f"), kNoLimit), "x");
}

TEST_P(FileSystemContract, ListsCopiesMovesAndRemoves) {
    IFileSystem& files = Files();
    for (const char* name : {"z", "a", "M", "sub/inner"}) {
        files.CreateFolder(At(name).parent_path());
        ASSERT_TRUE(files.WriteFile(At(name), name));
    }
    files.CreateFolder(At("other"));
    EXPECT_EQ(files.ListFiles(m_folder.Path()), (std::vector<std::string>{"M", "a", "z"}));
    EXPECT_EQ(files.ListFolders(m_folder.Path()), (std::vector<std::string>{"other", "sub"}));
    EXPECT_TRUE(files.ListFiles(At("none")).empty());
    EXPECT_TRUE(files.CopyFile(At("a"), At("z")));
    EXPECT_EQ(files.ReadFile(At("z"), kNoLimit), "a");
    EXPECT_TRUE(files.CopyFile(At("a"), At("a")));
    EXPECT_EQ(files.ReadFile(At("a"), kNoLimit), "a");
    EXPECT_TRUE(files.MoveFile(At("a"), At("sub/inner")));
    EXPECT_EQ(files.ReadFile(At("sub/inner"), kNoLimit), "a");
    EXPECT_FALSE(files.IsFile(At("a")));
    EXPECT_TRUE(files.MoveFile(At("M"), At("M")));
    EXPECT_TRUE(files.RemoveFile(At("M")));
    EXPECT_EQ(files.ListFiles(m_folder.Path()), std::vector<std::string>{"z"});
}

INSTANTIATE_TEST_SUITE_P(, FileSystemContract, testing::Values("posix", "memory"),
                         [](const auto& row) { return std::string(row.param); });

class PosixFileSystem : public testing::Test {
protected:
    static mode_t Mode(const fs::path& file) {
        struct stat status {};
        EXPECT_EQ(stat(file.c_str(), &status), 0);
        return status.st_mode & 07777;
    }
    test::CTempFolder m_folder;
    CPosixFileSystem m_files;
};

TEST_F(PosixFileSystem, AWriteKeepsPermissionsAndFollowsLinks) {
    const mode_t mask = umask(027);
    umask(mask);
    ASSERT_TRUE(m_files.WriteFile(m_folder / "new", "x"));
    EXPECT_EQ(Mode(m_folder / "new"), 0666 & ~mask);
    chmod((m_folder / "new").c_str(), 0600);
    ASSERT_TRUE(m_files.WriteFile(m_folder / "new", "y"));
    EXPECT_EQ(Mode(m_folder / "new"), 0600U);

    fs::create_directory(m_folder / "sub");
    fs::create_symlink("../new", m_folder / "sub/relative");
    fs::create_symlink(m_folder / "sub/relative", m_folder / "absolute");
    fs::create_symlink("fresh", m_folder / "dangling");
    fs::create_symlink("round", m_folder / "round");
    EXPECT_TRUE(m_files.WriteFile(m_folder / "absolute", "linked"));
    EXPECT_TRUE(m_files.WriteFile(m_folder / "dangling", "made"));
    EXPECT_FALSE(m_files.WriteFile(m_folder / "round", "x"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "absolute") && fs::is_symlink(m_folder / "sub/relative"));
    EXPECT_EQ(m_folder.Get("new"), "linked");
    EXPECT_EQ(m_folder.Get("fresh"), "made");
    EXPECT_EQ(m_files.ListFiles(m_folder.Path()), (std::vector<std::string>{"absolute", "dangling", "fresh", "new"}));
}

TEST_F(PosixFileSystem, PipesAndDevicesAreNoFilesAndNobodyWaitsForThem) {
    ASSERT_EQ(mkfifo((m_folder / "pipe").c_str(), 0600), 0);
    for (const fs::path& path : {m_folder / "pipe", fs::path("/dev/zero")}) {
        EXPECT_EQ(m_files.OpenRead(path), nullptr);
        EXPECT_FALSE(m_files.ReadFile(path, kNoLimit));
    }
    EXPECT_FALSE(m_files.WriteFile(m_folder / "pipe", "x"));
    EXPECT_FALSE(m_files.IsFile(m_folder / "pipe"));
}

}  // namespace
}  // namespace rlx
