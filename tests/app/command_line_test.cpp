#include "app/command_line.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace zev
