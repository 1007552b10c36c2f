#include "toolkit/files.h"

#include <chrono>
#include <iterator>

#include <gtest/gtest.h>

#include "toolkit/failure_of.h"
#include "toolkit/temporary_folder.h"

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

TEST(Files, ReplacingKeepsModeAndLinkAndLeavesNothingBeside) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "d");
    writeFile(folder / "d/f", "old");
    fs::permissions(folder / "d/f", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(folder / "d/f", folder / "link");
    writeFile(folder / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(readFile(folder / "d/f"), "new");
    EXPECT_EQ(fs::status(folder / "d/f").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "d"), {}), 1);
}

TEST(Files, ABlockIsWrittenOverWhereItStands) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "a longer line");
    std::filesystem::create_hard_link(folder / "f", folder / "same");
    updateFile(folder / "f", "short");
    EXPECT_EQ(readFile(folder / "same"), "short");
    updateFile(folder / "f", std::string(4096, 'x'));
    EXPECT_EQ(readFile(folder / "same"), std::string(4096, 'x'));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / ""), {}), 2);
}

TEST(Files, MoreThanABlockTakesThePlaceOfWhatWasThere) {
    const TemporaryFolder folder;
    updateFile(folder / "f", "new");
    EXPECT_EQ(readFile(folder / "f"), "new");
    for (const std::size_t length : {std::size_t{4097}, std::size_t{3}}) {
        std::filesystem::remove(folder / "before");
        std::filesystem::create_hard_link(folder / "f", folder / "before");
        const std::string before = readFile(folder / "f");
        updateFile(folder / "f", std::string(length, 'x'));
        EXPECT_EQ(readFile(folder / "f"), std::string(length, 'x'));
        EXPECT_EQ(readFile(folder / "before"), before);
    }
}

TEST(Files, WhatCantBeUpdatedFailsLikeWhatCantBeWritten) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "d");
    EXPECT_EQ(failureOf([&] { updateFile(folder / "d", "x"); }), 75);
    EXPECT_EQ(failureOf([&] { updateFile(folder / "no" / "f", "x"); }), 76);
}

TEST(Files, ANameThatLeavesNoRoomForAnotherBesideItIsWrittenOver) {
    const TemporaryFolder folder;
    const std::string name(250, 'n');
    writeFile(folder / name, "old");
    writeFile(folder / name, "new");
    EXPECT_EQ(readFile(folder / name), "new");
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

TEST(Files, ACopyHasContentAndTimeAndIsWritable) {
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    fs::last_write_time(folder / "from",
                        fs::last_write_time(folder / "from") - std::chrono::hours(48));
    fs::permissions(folder / "from", fs::perms::owner_read);
    copyFile(folder / "from", folder / "to");
    EXPECT_EQ(readFile(folder / "to"), "content");
    EXPECT_EQ(fileTime(folder / "to"), fileTime(folder / "from"));
    EXPECT_EQ(fs::last_write_time(folder / "to"), fs::last_write_time(folder / "from"));
    EXPECT_NE(fs::status(folder / "to").permissions() & fs::perms::owner_write, fs::perms::none);
    // Else some systems don't let it be removed.
    fs::permissions(folder / "from", fs::perms::owner_all);
}

TEST(Files, ACopyReplacesItsTarget) {
    const TemporaryFolder folder;
    writeFile(folder / "from", "new");
    writeFile(folder / "to", "old and longer");
    copyFile(folder / "from", folder / "to");
    EXPECT_EQ(readFile(folder / "to"), "new");
}

TEST(Files, ACopyOntoItselfFailsAndKeepsTheContent) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "content");
    EXPECT_EQ(failureOf([&] { copyFile(folder / "f", folder / "f"); }), 70);
    EXPECT_EQ(readFile(folder / "f"), "content");
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
