// A disk that fills up, and other files that only a system with devices among its files can show.
#include <csignal>
#include <iterator>

#include <sys/resource.h>

#include <gtest/gtest.h>

#include "support/small_disk.h"
#include "support/temporary_folder.h"
#include "toolkit/base/copy_file.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/failure_of.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;
using test::failureOf;
using test::TemporaryFolder;

// No file may grow beyond this many bytes while it lives: a disk that fills up half way.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit before_{};
};

TEST(FullDisk, AFullDiskIsFailure61EvenWhereOnlyTheFlushSeesIt) {
    EXPECT_EQ(failureOf([] { writeFile("/dev/full", "short"); }), 61);
    EXPECT_EQ(failureOf([] { writeFile("/dev/full", std::string(1000000, 'x')); }), 61);
    EXPECT_EQ(failureOf([] { appendFile("/dev/full", "short"); }), 61);
}

TEST(FullDisk, WhatFindsNoRoomLeavesTheOldContent) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "old");
    const FileSizeLimit limit(100000);
    EXPECT_EQ(failureOf([&] { writeFile(folder / "f", std::string(300000, 'x')); }), 57);
    EXPECT_EQ(readFile(folder / "f"), "old");
    EXPECT_EQ(failureOf([&] { writeFile(folder / "g", std::string(300000, 'x')); }), 57);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / ""), {}), 1);
}

TEST(FullDisk, WhatFindsNoRoomWhereItStandsLeavesTheOldContent) {
    const TemporaryFolder folder;
    // Too long for another one beside it.
    const auto file = folder / std::string(250, 'n');
    writeFile(file, std::string(500, 'o'));
    const FileSizeLimit limit(1000);
    EXPECT_EQ(failureOf([&] { writeFile(file, std::string(2000, 'x')); }), 57);
    EXPECT_EQ(readFile(file), std::string(500, 'o'));
    writeFile(file, std::string(900, 'y'));
    EXPECT_EQ(readFile(file), std::string(900, 'y'));
    const auto other = folder / std::string(251, 'n');
    EXPECT_EQ(failureOf([&] { writeFile(other, std::string(2000, 'x')); }), 57);
    EXPECT_FALSE(fs::exists(other));
}

TEST(FullDisk, NothingIsWrittenOverNotEvenWhatNeedsNoMoreBlocks) {
    const TemporaryFolder folder;
    const test_system::SmallDisk disk(folder.path(), 64);
    if (!disk.isThere()) GTEST_SKIP() << "no disk can be made here: " << disk.refusal();
    writeFile(folder / "f", std::string(6000, 'x'));
    disk.fill();
    for (const std::size_t length : {5000U, 6000U, 8000U, 9000U, 1U}) {
        EXPECT_EQ(failureOf([&] { writeFile(folder / "f", std::string(length, 'y')); }), 61);
        EXPECT_EQ(readFile(folder / "f"), std::string(6000, 'x'));
        EXPECT_FALSE(fs::exists(folder / "$$f.part"));
    }
    EXPECT_EQ(failureOf([&] { writeFile(folder / "g", "new"); }), 61);
    EXPECT_EQ(failureOf([&] { copyFile(folder / "f", folder / "g"); }), 61);
    EXPECT_EQ(failureOf([&] { writeTemporaryFile(folder / "g", "new"); }), 61);
    EXPECT_FALSE(fs::exists(folder / "g"));
    disk.giveRoom();
    writeFile(folder / "f", std::string(9000, 'z'));
    EXPECT_EQ(readFile(folder / "f"), std::string(9000, 'z'));
}

TEST(FullDisk, AFailedCopyOntoADeviceLeavesTheDevice) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "x");
    fs::create_symlink("/dev/full", folder / "link");
    EXPECT_EQ(failureOf([&] { copyFile(folder / "f", folder / "link"); }), 61);
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST(FullDisk, AnEndlessSourceIsFailure7) {
    EXPECT_EQ(failureOf([] { (void)readFile("/dev/zero"); }), 7);
}

TEST(FullDisk, AHalfWrittenCopyIsRemovedAndItsTargetStays) {
    const TemporaryFolder folder;
    writeFile(folder / "from", std::string(300000, 'x'));
    const FileSizeLimit limit(100000);
    EXPECT_EQ(failureOf([&] { copyFile(folder / "from", folder / "to"); }), 57);
    EXPECT_FALSE(fs::exists(folder / "to"));
    EXPECT_TRUE(fs::exists(folder / "from"));
    writeFile(folder / "to", "old");
    EXPECT_EQ(failureOf([&] { copyFile(folder / "from", folder / "to"); }), 57);
    EXPECT_EQ(readFile(folder / "to"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / ""), {}), 2);
}

} // namespace
} // namespace toolkit
