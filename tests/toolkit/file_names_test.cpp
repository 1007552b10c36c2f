#include "toolkit/base/file_names.h"

#include <string>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(FileNames, MayHoldBlanksDotsAndLettersOfTheCodePage) {
    EXPECT_TRUE(isPossibleFileName("Joe & Jane.zev"));
    EXPECT_TRUE(isPossibleFileName("a.b.c"));
    EXPECT_TRUE(isPossibleFileName("Ren\xE9.zev"));
}

TEST(FileNames, AreNeverEmpty) { EXPECT_FALSE(isPossibleFileName("")); }

TEST(FileNames, HoldNoSeparator) { EXPECT_FALSE(isPossibleFileName("a/b.zev")); }

TEST(FileNames, HoldNoControlCharacters) {
    EXPECT_FALSE(isPossibleFileName(std::string_view("a\0b", 3)));
    EXPECT_FALSE(isPossibleFileName("a\nb"));
    EXPECT_FALSE(isPossibleFileName("a\x1F"));
    EXPECT_FALSE(isPossibleFileName("a\x7F"));
    EXPECT_TRUE(isPossibleFileName("a\x80"));
}

TEST(FileNames, AreNoFolders) {
    EXPECT_FALSE(isPossibleFileName("."));
    EXPECT_FALSE(isPossibleFileName(".."));
}

TEST(FileNames, AreAsLongAsFileSystemsTake) {
    EXPECT_TRUE(isPossibleFileName(std::string(255, 'a')));
    EXPECT_FALSE(isPossibleFileName(std::string(256, 'a')));
    // Two bytes each on the disk.
    EXPECT_TRUE(isPossibleFileName(std::string(127, '\xE9')));
    EXPECT_FALSE(isPossibleFileName(std::string(128, '\xE9')));
}

} // namespace
} // namespace toolkit
