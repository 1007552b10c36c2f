#include "app/command_line.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace zev {
namespace {

TEST(CommandLine, NamesTheCardBehindTheLastSeparator) {
    EXPECT_EQ(cardNameOf("C:\\cards\\Joe.zev"), "Joe");
    EXPECT_EQ(cardNameOf("/home/joe/ZEV/Joe.zev"), "Joe");
    EXPECT_EQ(cardNameOf("C:/cards\\a/Joe"), "Joe");
}

TEST(CommandLine, IsCutAtTheFirstDot) {
    EXPECT_EQ(cardNameOf("Joe.v2.zev"), "Joe");
    EXPECT_EQ(cardNameOf("./cards.d/Joe"), "Joe");
    EXPECT_EQ(cardNameOf(".zev"), "");
}

TEST(CommandLine, KeepsQuotesAndBlanks) {
    EXPECT_EQ(cardNameOf("\"C:\\my cards\\Joe & Jane.zev\""), "Joe & Jane");
    EXPECT_EQ(cardNameOf("\"Joe\""), "\"Joe\"");
    EXPECT_EQ(cardNameOf(" Joe "), " Joe ");
}

TEST(CommandLine, IsInUtf8) {
    EXPECT_EQ(cardNameOf("M\u00FCller"), "M\xFCller");
    EXPECT_EQ(cardNameOf("/home/\u0141/M\u00FCller & Fr\u00E8re.zev"), "M\xFCller & Fr\xE8re");
    EXPECT_EQ(cardNameOf("Mu\u0308ller.zev"), "M\xFCller");
}

TEST(CommandLine, NamesNoCardBeyondTheCodePage) {
    EXPECT_EQ(cardNameOf("/any/where/\u0141\u00F3d\u017A M\u00FCller.zev"), "");
    EXPECT_EQ(cardNameOf("M\xFCller"), "");
}

TEST(CommandLine, OfAFolderNamesNoCard) {
    EXPECT_EQ(cardNameOf("C:\\cards\\"), "");
    EXPECT_EQ(cardNameOf(""), "");
}

namespace fs = std::filesystem;

class FileOnTheCommandLine : public testing::Test {
  protected:
    FileOnTheCommandLine() {
        for (const char* name : {"Jones.zev", "a b.zev", "plain", "100%41.ZEV"})
            std::ofstream(folder / name) << "content";
    }
    ~FileOnTheCommandLine() override { fs::current_path(before); }

    const fs::path before = fs::current_path();
    const toolkit::test::TemporaryFolder made;
    const fs::path folder = made.path();
};

TEST_F(FileOnTheCommandLine, IsNamedByItsPath) {
    EXPECT_EQ(fileNamedBy((folder / "Jones.zev").string()), folder / "Jones.zev");
    EXPECT_EQ(fileNamedBy((folder / "a b.zev").string()), folder / "a b.zev");
    EXPECT_EQ(fileNamedBy((folder / "plain").string()), folder / "plain");
    EXPECT_EQ(fileNamedBy((folder / "100%41.ZEV").string()), folder / "100%41.ZEV");
}

TEST_F(FileOnTheCommandLine, IsNamedByAPathFromTheFolderAtWork) {
    fs::current_path(folder);
    EXPECT_EQ(fileNamedBy("a b.zev"), fs::current_path() / "a b.zev");
    EXPECT_EQ(fileNamedBy("./plain"), fs::current_path() / "./plain");
    fs::current_path(folder.parent_path());
    const fs::path relative = folder.filename() / "Jones.zev";
    EXPECT_EQ(fileNamedBy(relative.string()), fs::current_path() / relative);
}

TEST_F(FileOnTheCommandLine, IsNamedByAnAddress) {
    std::string address =
        "file://" + std::string(folder.generic_string().front() == '/' ? "" : "/");
    for (const char character : folder.generic_string())
        address += character == ' ' ? "%20" : std::string(1, character);
    EXPECT_EQ(fileNamedBy(address + "/a%20b.zev"), folder / "a b.zev");
    EXPECT_EQ(fileNamedBy(address + "/100%2541.ZEV"), folder / "100%41.ZEV");
    EXPECT_EQ(fileNamedBy(address + "/gone.zev"), std::nullopt);
}

TEST_F(FileOnTheCommandLine, ABareWordIsNoFile) {
    fs::current_path(folder);
    EXPECT_EQ(fileNamedBy("plain"), std::nullopt);
    EXPECT_EQ(fileNamedBy("Jones"), std::nullopt);
}

TEST_F(FileOnTheCommandLine, IsThereAndNoFolder) {
    EXPECT_EQ(fileNamedBy(""), std::nullopt);
    EXPECT_EQ(fileNamedBy(folder.string()), std::nullopt);
    EXPECT_EQ(fileNamedBy((folder / "gone.zev").string()), std::nullopt);
    EXPECT_EQ(fileNamedBy("\xFF\xFF.zev"), std::nullopt);
    EXPECT_EQ(fileNamedBy(std::string("/") + std::string(5000, 'x') + ".zev"), std::nullopt);
}

} // namespace
} // namespace zev
