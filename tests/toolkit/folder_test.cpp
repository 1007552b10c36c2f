#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/write_file.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

TEST(Folder, AFileIsFoundWithoutRegardToCase) {
    const TemporaryFolder folder;
    writeFile(folder / "DEFINITIONS.INI", "x");
    EXPECT_EQ(findFile(folder.path(), "Definitions.Ini"), folder / "DEFINITIONS.INI");
}

TEST(Folder, TheExactSpellingComesFirst) {
    const TemporaryFolder folder;
    for (const char* name : {"ZEV.ini", "Zev.Ini", "zev.INI"}) writeFile(folder / name, name);
    EXPECT_EQ(findFile(folder.path(), "Zev.Ini"), folder / "Zev.Ini");
    EXPECT_EQ(findFile(folder.path(), "zev.INI"), folder / "zev.INI");
}

TEST(Folder, AmongOtherSpellingsTheChoiceIsFixed) {
    const TemporaryFolder folder;
    for (const char* name : {"b.Zev", "B.ZEV", "b.zeV"}) writeFile(folder / name, name);
    EXPECT_EQ(findFile(folder.path(), "b.zev"), folder / "B.ZEV");
}

TEST(Folder, LettersBeyondAsciiMatchWithoutCaseToo) {
    const TemporaryFolder folder;
    const fs::path file = folder.path() / fs::path(u8"Caf\u00C9.zev");
    writeFile(file, "x");
    EXPECT_EQ(findFile(folder.path(), "caf\xE9.zev"), file);
}

TEST(Folder, NothingIsFoundWhereNothingMatches) {
    const TemporaryFolder folder;
    writeFile(folder / "ab.zev", "x");
    EXPECT_EQ(findFile(folder.path(), "a.zev"), std::nullopt);
    EXPECT_EQ(findFile(folder.path(), ""), std::nullopt);
    EXPECT_EQ(findFile(folder / "none", "a.zev"), std::nullopt);
}

TEST(Folder, ResolvingGivesThePlaceOfANewFile) {
    const TemporaryFolder folder;
    EXPECT_EQ(resolveFile(folder.path(), "New.zev"), folder / "New.zev");
    writeFile(folder / "NEW.ZEV", "x");
    EXPECT_EQ(resolveFile(folder.path(), "New.zev"), folder / "NEW.ZEV");
}

TEST(Folder, ListsFilesByEndingSortedWithoutCase) {
    const TemporaryFolder folder;
    for (const char* name : {"b.zev", "A.ZEV", "c.Zev", "d.txt", "zev", "x.zev.bak"})
        writeFile(folder / name, "x");
    EXPECT_EQ(listFiles(folder.path(), ".zev"), (Names{"A.ZEV", "b.zev", "c.Zev"}));
}

TEST(Folder, ListsLettersOfTheCodePageBehindAscii) {
    const TemporaryFolder folder;
    for (const char* name : {"\xC3\x89mile.zev", "zoe.zev"}) writeFile(folder / name, "x");
    EXPECT_EQ(listFiles(folder.path(), ".zev"), (Names{"zoe.zev", "\xC9mile.zev"}));
}

TEST(Folder, ListsNeitherFoldersNorNamesBeyondTheCodePage) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder.zev");
    writeFile(folder.path() / fs::path(u8"\u0141.zev"), "x");
    writeFile(folder / "good.zev", "x");
    EXPECT_EQ(listFiles(folder.path(), ".zev"), Names{"good.zev"});
}

TEST(Folder, ListsNoNamesOfStrayBytes) {
    const TemporaryFolder folder;
    writeFile(folder.path() / "bad\xFF.zev", "x");
    writeFile(folder / "good.zev", "x");
    EXPECT_EQ(listFiles(folder.path(), ".zev"), Names{"good.zev"});
}

TEST(Folder, AnUnreadableFolderListsNothing) {
    const TemporaryFolder folder;
    writeFile(folder / "f", "x");
    EXPECT_EQ(listFiles(folder / "none", ".zev"), Names{});
    EXPECT_EQ(listFiles(folder / "f", ""), Names{});
}

} // namespace
} // namespace toolkit
