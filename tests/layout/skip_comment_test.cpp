#include "layout/skip_comment.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

struct Skipped {
    bool atEnd = false;
    std::string next; ///< the line that is read next
    std::string version;
};

Skipped skip(std::string content, std::string version = "") {
    toolkit::TextInput input(std::move(content));
    Skipped skipped{.atEnd = false, .next = {}, .version = std::move(version)};
    skipped.atEnd = skipComments(input, skipped.version);
    if (!input.atEnd()) skipped.next = input.readLine();
    return skipped;
}

TEST(SkipComments, StopsBeforeTheNextDataLine) {
    const Skipped skipped = skip("' comment\r\n\r\n   \r\n12,13\r\n' more\r\n");
    EXPECT_FALSE(skipped.atEnd);
    EXPECT_EQ(skipped.next, "12,13");
}

TEST(SkipComments, StaysWhereADataLineFollows) { EXPECT_EQ(skip("1,2\r\n3\r\n").next, "1,2"); }

TEST(SkipComments, TellsTheEndOfTheFile) {
    EXPECT_TRUE(skip("").atEnd);
    EXPECT_TRUE(skip("' comment").atEnd);
    EXPECT_TRUE(skip("' comment\r\n\r\n").atEnd);
}

TEST(SkipComments, AcceptsEveryLineEndAndAByteOrderMark) {
    EXPECT_EQ(skip("' comment\n\n5\n").next, "5");
    EXPECT_EQ(skip("' comment\r\r5\r").next, "5");
    EXPECT_EQ(skip("\xEF\xBB\xBF' comment\r\n5").next, "5");
}

TEST(SkipComments, TakesAQuoteBehindABlankForData) { EXPECT_EQ(skip(" 'x\r\n").next, " 'x"); }

TEST(SkipComments, KeepsTheVersionOfAComment) {
    EXPECT_EQ(skip("' Program version:  1.0.181  \r\n5\r\n").version, "1.0.181");
    EXPECT_EQ(skip("' Program version: 1.0.181").version, "1.0.181");
}

TEST(SkipComments, KeepsTheVersionThatADataLineSpeaksOf) {
    EXPECT_EQ(skip("1,\"Program version: 7\",0\r\n").version, "7\",0");
}

TEST(SkipComments, KeepsTheLastVersionOfSeveralLines) {
    EXPECT_EQ(skip("'Program version: 1\r\n'Program version: 2\r\n").version, "2");
}

TEST(SkipComments, TakesTheFirstVersionOfALine) {
    EXPECT_EQ(skip("'Program version: 1 Program version: 2\r\n").version, "1 Program version: 2");
}

TEST(SkipComments, LeavesTheVersionWhereNoLineTellsIt) {
    EXPECT_EQ(skip("' program version: 9\r\n5\r\n' Program version: 3\r\n", "old").version, "old");
    EXPECT_EQ(skip("' Program\r\n' version: 9\r\n", "old").version, "old");
}

TEST(SkipComments, KeepsNoMoreThanAVersionOfAVeryLongLine) {
    EXPECT_EQ(skip("'Program version: 1" + std::string(1000, 'x') + "\r\n").version,
              "1" + std::string(254, 'x'));
}

TEST(SkipComments, ReadsTheVersionAgainInTheRestOfALine) {
    toolkit::TextInput input("1,\"Program version: 2\",\"Program version: 3\"\r\n");
    std::string version;
    static_cast<void>(input.readInteger());
    skipComments(input, version);
    EXPECT_EQ(version, "2\",\"Program version: 3\"");
    static_cast<void>(input.readText());
    skipComments(input, version);
    EXPECT_EQ(version, "3\"");
}

} // namespace
} // namespace zev
