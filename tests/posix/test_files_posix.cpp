#include "platform/contract_files.h"
#include "posix/files_posix.h"
#include "posix/temp_folder.h"

#include <csignal>
#include <sys/resource.h>

namespace quill {
namespace {

struct RealWorld {
    Files& Get() { return files; }
    void MakeReadOnly(const std::string& path) { ::chmod(path.c_str(), 0500); }
    void MakeUnreadable(const std::string& path) { ::chmod(path.c_str(), 0200); }

    OrdinaryUser user;
    TempFolder folder;
    FilesPosix files;
    std::string Root = folder.Path;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Real, FilesContract, RealWorld);

class FilesOnDisk : public testing::Test {
protected:
    TempFolder folder;
    FilesPosix files;
};

// No file of this process may grow beyond the limit, as on a disk that fills up while it is written.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        ::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit before_{};
};

TEST_F(FilesOnDisk, AFileThatCouldNotBeFinishedIsTakenAwayAgain) {
    ASSERT_TRUE(files.Create(folder.At("source"), std::string(10'000, 'x')));
    const SmallDisk small(1000);
    EXPECT_FALSE(files.Create(folder.At("torn"), std::string(10'000, 'x')));
    EXPECT_FALSE(files.Copy(folder.At("source"), folder.At("copy")));
    EXPECT_FALSE(files.Exists(folder.At("torn")));
    EXPECT_FALSE(files.Exists(folder.At("copy")));
}

TEST_F(FilesOnDisk, APlaceThatTakesNoFilesSaysSo) {
    EXPECT_EQ(Told(files.Create("/dev/full/file", "x")), Told(Reason::NotFound, "Not a directory"));
    EXPECT_EQ(Told(files.Create("/proc/new", "x")), NoSuchFile);
}

TEST_F(FilesOnDisk, NewFilesAndFoldersAreThisUsersAlone) {
    ASSERT_TRUE(files.Create(folder.At("file"), "x"));
    ASSERT_TRUE(files.MakeFolder(folder.At("folder")));
    struct stat info {};
    ASSERT_EQ(::stat(folder.At("file").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600U);
    ASSERT_EQ(::stat(folder.At("folder").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700U);
}

TEST_F(FilesOnDisk, LinksAreFollowedAndADanglingOneIsMissing) {
    ASSERT_TRUE(files.Create(folder.At("file"), "x"));
    ASSERT_EQ(::symlink("file", folder.At("link").c_str()), 0);
    ASSERT_EQ(::symlink("none", folder.At("dangling").c_str()), 0);
    EXPECT_EQ(files.Read(folder.At("link"), 10).Value(), "x");
    EXPECT_TRUE(files.Stat(folder.At("dangling")).Missing());
    EXPECT_EQ(Told(files.Create(folder.At("dangling"), "x")), FileExists);
    EXPECT_FALSE(files.Exists(folder.At("none")));
}

TEST_F(FilesOnDisk, APipeIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(folder.At("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(files.Read(folder.At("pipe"), 10));
    EXPECT_FALSE(files.Copy(folder.At("pipe"), folder.At("copy")));
    EXPECT_FALSE(files.Read("/dev/zero", 10));
}

TEST_F(FilesOnDisk, AFileThatHidesItsSizeIsReadWholeAndLimited) {
    EXPECT_TRUE(files.Read("/proc/self/status", 1'000'000));
    const auto limited = files.Read("/proc/self/status", 10);
    ASSERT_FALSE(limited);
    EXPECT_EQ(limited.Error().Kind, Reason::TooLarge);
}

TEST_F(FilesOnDisk, ANameWithAZeroByteNeverMeansAnotherFile) {
    ASSERT_TRUE(files.Create(folder.At("file"), "x"));
    const auto cut = folder.At("file") + std::string("\0.txt", 5);
    EXPECT_FALSE(files.Stat(cut));
    EXPECT_FALSE(files.Read(cut, 10));
    EXPECT_FALSE(files.Remove(cut));
    EXPECT_FALSE(files.Rename(cut, folder.At("other")));
    EXPECT_TRUE(files.Exists(folder.At("file")));
}

TEST_F(FilesOnDisk, AProgramIsExecutableAndACopyOfItToo) {
    ASSERT_TRUE(files.Create(folder.At("program"), "x"));
    ASSERT_EQ(::chmod(folder.At("program").c_str(), 0700), 0);
    EXPECT_TRUE(files.Stat(folder.At("program")).Value().IsExecutable);
    ASSERT_TRUE(files.Copy(folder.At("program"), folder.At("copy")));
    EXPECT_TRUE(files.Stat(folder.At("copy")).Value().IsExecutable);
}

} // namespace
} // namespace quill
