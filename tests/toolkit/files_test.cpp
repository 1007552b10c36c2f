#include <chrono>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/copy_file.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/write_file.h"
#include "toolkit/failure_of.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;
using test::failureOf;
using test::TemporaryFolder;
using namespace std::string_literals;

TEST(Files, ContentComesBackByteByByte) {
    const TemporaryFolder folder;
    std::string content = "a\r\nb\n\0\x1A\xFF"s;
    content.append(200000, 'x');
    writeFile(folder / "f", content);
    EXPECT_EQ(readFile(folder / "f"), content);
    EXPECT_EQ(fileLength(folder / "f"), content.size());
}

TEST(Files, WritingReplacesAndAppendingAdds) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "long content");
    writeFile(folder / "f", "new");
    appendFile(folder / "f", " and more");
    EXPECT_EQ(readFile(folder / "f"), "new and more");
    appendFile(folder / "g", "made");
    EXPECT_EQ(readFile(folder / "g"), "made");
}

TEST(Files, ANewFileNeverReplacesOneThatIsThere) {
    const TemporaryFolder folder;
    writeNewFile(folder / "f", "first");
    EXPECT_EQ(failureOf([&] { writeNewFile(folder / "f", "second"); }), 58);
    EXPECT_EQ(failureOf([&] { copyNewFile(folder / "f", folder / "f"); }), 58);
    EXPECT_EQ(readFile(folder / "f"), "first");
    copyNewFile(folder / "f", folder / "g");
    EXPECT_EQ(readFile(folder / "g"), "first");
    EXPECT_EQ(fileTime(folder / "g"), fileTime(folder / "f"));
    fs::create_directory(folder / "d");
    EXPECT_EQ(failureOf([&] { writeNewFile(folder / "d", "x"); }), 75);
    EXPECT_EQ(failureOf([&] { writeNewFile(folder / "none" / "f", "x"); }), 76);
    EXPECT_EQ(listFiles(folder.path(), "").size(), 2U);
}

TEST(Files, AFolderFailsWhereItIsOpened) {
    const TemporaryFolder folder;
    EXPECT_EQ(failureOf([&] { const FileHandle file(folder.path(), FileMode::Read); }), 75);
}

TEST(Files, AMissingFileIsFailure53) {
    const TemporaryFolder folder;
    EXPECT_EQ(failureOf([&] { (void)readFile(folder / "none"); }), 53);
    EXPECT_EQ(failureOf([&] { (void)fileTime(folder / "none"); }), 53);
    EXPECT_EQ(failureOf([&] { (void)fileLength(folder / "none"); }), 53);
    EXPECT_EQ(failureOf([&] { deleteFile(folder / "none"); }), 53);
    EXPECT_EQ(failureOf([&] { copyFile(folder / "none", folder / "x"); }), 53);
    EXPECT_EQ(failureOf([&] { renameFile(folder / "none", folder / "x"); }), 53);
    EXPECT_FALSE(fs::exists(folder / "x"));
}

TEST(Files, AMissingFolderOnTheWayIsFailure76) {
    const TemporaryFolder folder;
    EXPECT_EQ(failureOf([&] { (void)readFile(folder / "none/f"); }), 76);
    EXPECT_EQ(failureOf([&] { writeFile(folder / "none/f", "x"); }), 76);
    EXPECT_EQ(failureOf([&] { appendFile(folder / "none/f", "x"); }), 76);
}

TEST(Files, AFileInThePlaceOfAFolderIsFailure76) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "x");
    EXPECT_EQ(failureOf([&] { (void)readFile(folder / "f/g"); }), 76);
    EXPECT_EQ(failureOf([&] { writeFile(folder / "f/g", "x"); }), 76);
    EXPECT_EQ(failureOf([&] { deleteFile(folder / "f/g"); }), 76);
}

TEST(Files, AFolderInThePlaceOfAFileIsFailure75) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "d");
    writeFile(folder / "f", "x");
    EXPECT_EQ(failureOf([&] { (void)readFile(folder / "d"); }), 75);
    EXPECT_EQ(failureOf([&] { writeFile(folder / "d", "x"); }), 75);
    EXPECT_EQ(failureOf([&] { appendFile(folder / "d", "x"); }), 75);
    EXPECT_EQ(failureOf([&] { deleteFile(folder / "d"); }), 75);
    EXPECT_EQ(failureOf([&] { (void)fileLength(folder / "d"); }), 75);
    EXPECT_EQ(failureOf([&] { copyFile(folder / "d", folder / "x"); }), 75);
    EXPECT_EQ(failureOf([&] { copyFile(folder / "f", folder / "d"); }), 75);
    EXPECT_TRUE(fs::is_directory(folder / "d"));
    EXPECT_FALSE(fs::exists(folder / "x"));
}

TEST(Files, ANameTooLongIsFailure52) {
    const TemporaryFolder folder;
    EXPECT_EQ(failureOf([&] { writeFile(folder / std::string(300, 'n'), "x"); }), 52);
}

TEST(Files, RenamingMovesTheFile) {
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    renameFile(folder / "from", folder / "to");
    EXPECT_EQ(readFile(folder / "to"), "content");
    EXPECT_FALSE(fs::exists(folder / "from"));
}

TEST(Files, RenamingOntoAnExistingFileFailsAndKeepsBoth) {
    const TemporaryFolder folder;
    writeFile(folder / "from", "new");
    writeFile(folder / "to", "old");
    EXPECT_EQ(failureOf([&] { renameFile(folder / "from", folder / "to"); }), 58);
    EXPECT_EQ(readFile(folder / "to"), "old");
    EXPECT_EQ(readFile(folder / "from"), "new");
}

TEST(Files, ReplacingByRenameTakesTheTargetsPlaceOrMakesIt) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "d");
    writeFile(folder / "from", "new");
    writeFile(folder / "to", "old and longer");
    replaceByRename(folder / "from", folder / "to");
    EXPECT_EQ(readFile(folder / "to"), "new");
    EXPECT_FALSE(fs::exists(folder / "from"));
    replaceByRename(folder / "to", folder / "d/elsewhere");
    EXPECT_EQ(readFile(folder / "d/elsewhere"), "new");
    EXPECT_FALSE(fs::exists(folder / "to"));
}

TEST(Files, ReplacingByRenameThatFailsKeepsBoth) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "d");
    writeFile(folder / "f", "content");
    EXPECT_EQ(failureOf([&] { replaceByRename(folder / "none", folder / "f"); }), 53);
    EXPECT_EQ(failureOf([&] { replaceByRename(folder / "f", folder / "d"); }), 75);
    EXPECT_EQ(failureOf([&] { replaceByRename(folder / "d", folder / "f"); }), 75);
    EXPECT_EQ(failureOf([&] { replaceByRename(folder / "f", folder / "none/f"); }), 76);
    EXPECT_EQ(readFile(folder / "f"), "content");
    EXPECT_TRUE(fs::is_directory(folder / "d"));
}

TEST(Files, DeletingRemovesTheFileOnly) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "x");
    deleteFile(folder / "f");
    EXPECT_FALSE(fs::exists(folder / "f"));
    EXPECT_TRUE(fs::exists(folder.path()));
}

TEST(Files, TimeIsInWholeSecondsSinceTheEpoch) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "x");
    const auto moment =
        std::chrono::sys_days(std::chrono::year(2026) / 11 / 21) + std::chrono::milliseconds(900);
    fs::last_write_time(folder / "f", std::chrono::file_clock::from_sys(moment));
    EXPECT_EQ(fileTime(folder / "f"), 1795219200);
}

} // namespace
} // namespace toolkit
