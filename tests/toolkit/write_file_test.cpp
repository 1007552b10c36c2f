#include <iterator>
#include <set>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/file_handle.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/failure_of.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;
using test::failureOf;
using test::TemporaryFolder;
using FileNames = std::set<std::string>;

FileNames namesIn(const TemporaryFolder& folder) {
    FileNames names;
    for (const auto& entry : fs::directory_iterator(folder.path()))
        names.insert(entry.path().filename().string());
    return names;
}

TEST(WriteFile, ReplacingKeepsModeAndLinkAndLeavesNothingBeside) {
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

TEST(WriteFile, AFileOfTheLongestNameIsReplacedToo) {
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    writeFile(folder / name, "old");
    fs::create_hard_link(folder / name, folder / "before");
    writeFile(folder / name, "new");
    EXPECT_EQ(readFile(folder / name), "new");
    EXPECT_EQ(readFile(folder / "before"), "old");
    EXPECT_EQ(namesIn(folder), (FileNames{name, "before"}));
}

TEST(WriteFile, AFileOfAnySizeTakesThePlaceOfWhatWasThere) {
    const TemporaryFolder folder;
    for (const std::size_t length : {1U, 4096U, 70000U, 0U}) {
        writeFile(folder / "f", "old");
        fs::remove(folder / "before");
        fs::create_hard_link(folder / "f", folder / "before");
        writeFile(folder / "f", std::string(length, 'x'));
        EXPECT_EQ(readFile(folder / "f"), std::string(length, 'x'));
        EXPECT_EQ(readFile(folder / "before"), "old") << length;
    }
}

TEST(WriteFile, WhatADeadRunLeftBesideDoesntHinderAndGoes) {
    const TemporaryFolder folder;
    for (const char* name : {"f", "g"}) writeFile(folder / name, "old");
    writeFile(folder / "$$f.part", "a longer content, left half way");
    writeFile(folder / "f", "new");
    EXPECT_EQ(readFile(folder / "f"), "new");
    EXPECT_EQ(namesIn(folder), FileNames({"f", "g"}));
}

TEST(WriteFile, AnotherProgramsHalfWrittenFileIsNotTouched) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "old");
    FileHandle other(folder / "$$f.part", FileMode::Beside);
    other.write("other");
    writeFile(folder / "f", "new");
    EXPECT_EQ(readFile(folder / "f"), "new");
    EXPECT_EQ(namesIn(folder), FileNames({"f", "$$f.part"}));
    other.write(" content");
    EXPECT_FALSE(other.renameOver(folder / "f"));
    EXPECT_EQ(readFile(folder / "f"), "other content");
}

TEST(WriteFile, WhereNothingCanStandBesideItIsWrittenWhereItStands) {
    const TemporaryFolder folder;
    for (const char* name : {"$$f.part", "$$f.2.part"}) fs::create_directory(folder / name);
    writeFile(folder / "f", "made");
    fs::create_hard_link(folder / "f", folder / "same");
    for (const char* content : {"short", "a longer one", "", "new"}) {
        writeFile(folder / "f", content);
        EXPECT_EQ(readFile(folder / "f"), content);
        EXPECT_EQ(readFile(folder / "same"), content);
    }
}

TEST(WriteFile, ATemporaryFileIsWrittenWhereItStands) {
    const TemporaryFolder folder;
    writeTemporaryFile(folder / "f", "a longer line");
    fs::create_hard_link(folder / "f", folder / "same");
    writeTemporaryFile(folder / "f", "short");
    EXPECT_EQ(readFile(folder / "same"), "short");
    fs::create_directory(folder / "d");
    EXPECT_EQ(failureOf([&] { writeTemporaryFile(folder / "d", "x"); }), 75);
    EXPECT_EQ(failureOf([&] { writeTemporaryFile(folder / "none/f", "x"); }), 76);
}

TEST(WriteFile, OnlyWhatDeadRunsLeftIsDeleted) {
    const TemporaryFolder folder;
    const FileNames others = {"$$Tempcard.zev", "$$part", "card.part", "$.part", "$$x.parts"};
    for (const auto& name : others) writeFile(folder / name, "mine");
    for (const char* name : {"$$ZEV.Ini.part", "$$A card.zev.2.part", "$$.part"})
        writeTemporaryFile(folder / name, "half");
    const FileHandle living(folder / "$$living.part", FileMode::Beside);
    deleteLeftOvers(folder.path());
    FileNames left = others;
    left.insert("$$living.part");
    EXPECT_EQ(namesIn(folder), left);
    for (const auto& name : others) EXPECT_EQ(readFile(folder / name), "mine");
    deleteLeftOvers(folder / "none");
}

} // namespace
} // namespace toolkit
