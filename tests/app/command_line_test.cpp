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

TEST(CommandLine, OfAFolderNamesNoCard) {
    EXPECT_EQ(cardNameOf("C:\\cards\\"), "");
    EXPECT_EQ(cardNameOf(""), "");
}

} // namespace
} // namespace zev
