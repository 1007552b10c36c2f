#include "toolkit/base/text_input.h"

#include <gtest/gtest.h>

#include "toolkit/failure_of.h"

namespace toolkit {
namespace {

using test::failureOf;
using namespace std::string_literals;

TEST(TextInputLines, EndInAnyOfThreeWays) {
    TextInput input("one\r\ntwo\nthree\rfour");
    EXPECT_EQ(input.readLine(), "one");
    EXPECT_EQ(input.readLine(), "two");
    EXPECT_EQ(input.readLine(), "three");
    EXPECT_FALSE(input.atEnd());
    EXPECT_EQ(input.readLine(), "four");
    EXPECT_TRUE(input.atEnd());
}

TEST(TextInputLines, EmptyLinesCount) {
    TextInput input("\r\n\n\r\r\nx\r\n");
    for (int line = 0; line < 4; ++line) EXPECT_EQ(input.readLine(), "");
    EXPECT_EQ(input.readLine(), "x");
    EXPECT_TRUE(input.atEnd());
}

TEST(TextInputLines, ReadingPastTheEndFails) {
    TextInput input("");
    EXPECT_EQ(failureOf([&] { (void)input.readLine(); }), 62);
}

TEST(TextInputLines, NulBytesAreOrdinaryCharacters) {
    TextInput input("a\0b\r\nc"s);
    EXPECT_EQ(input.readLine(), "a\0b"s);
    EXPECT_EQ(input.readLine(), "c");
}

TEST(TextInput, AByteOrderMarkIsSkipped) {
    TextInput lines("\xEF\xBB\xBF'x");
    EXPECT_EQ(lines.readLine(), "'x");
    TextInput values("\xEF\xBB\xBF"
                     "15,2");
    EXPECT_EQ(values.readInteger(), 15);
}

TEST(TextInput, AByteOrderMarkFurtherOnIsText) {
    TextInput input("a\xEF\xBB\xBF");
    EXPECT_EQ(input.readLine(), "a\xEF\xBB\xBF");
}

TEST(TextInput, AFileOfAByteOrderMarkIsEmpty) { EXPECT_TRUE(TextInput("\xEF\xBB\xBF").atEnd()); }

TEST(TextInput, SeekReturnsToAPositionSeen) {
    TextInput input("one\ntwo\nthree");
    (void)input.readLine();
    const std::size_t second = input.position();
    EXPECT_EQ(input.readLine(), "two");
    input.seek(second);
    EXPECT_EQ(input.readLine(), "two");
}

TEST(TextInput, SeekBeyondTheContentIsItsEnd) {
    TextInput input("abc");
    input.seek(1000);
    EXPECT_TRUE(input.atEnd());
    EXPECT_EQ(failureOf([&] { (void)input.readLine(); }), 62);
    EXPECT_EQ(failureOf([&] { (void)input.readText(); }), 62);
}

TEST(TextInputValues, EndAtCommasAndLineEnds) {
    TextInput input("a,b\r\nc\nd\re");
    for (const char* value : {"a", "b", "c", "d", "e"}) EXPECT_EQ(input.readText(), value);
    EXPECT_TRUE(input.atEnd());
}

TEST(TextInputValues, AQuotedStringMayHoldCommasAndLineEnds) {
    TextInput input("\"a,b\r\nc\",2\r\n\"d\"\r\n7");
    EXPECT_EQ(input.readText(), "a,b\r\nc");
    EXPECT_EQ(input.readInteger(), 2);
    EXPECT_EQ(input.readText(), "d");
    EXPECT_EQ(input.readInteger(), 7);
}

TEST(TextInputValues, LeadingBlanksAreSkipped) {
    TextInput input("  a b ,   \"  c \"  , 4");
    EXPECT_EQ(input.readText(), "a b ");
    EXPECT_EQ(input.readText(), "  c ");
    EXPECT_EQ(input.readInteger(), 4);
}

TEST(TextInputValues, EmptyValuesCount) {
    TextInput input(",\"\",\r\n\r\nx");
    for (int value = 0; value < 4; ++value) EXPECT_EQ(input.readText(), "") << value;
    EXPECT_EQ(input.readText(), "x");
}

TEST(TextInputValues, AQuoteInsideAnUnquotedValueIsText) {
    TextInput input("a\"b,c");
    EXPECT_EQ(input.readText(), "a\"b");
    EXPECT_EQ(input.readText(), "c");
}

TEST(TextInputValues, AnUnclosedQuoteRunsToTheEnd) {
    TextInput input("\"abc,d\r\ne");
    EXPECT_EQ(input.readText(), "abc,d\r\ne");
    EXPECT_TRUE(input.atEnd());
    TextInput lonely("\"");
    EXPECT_EQ(lonely.readText(), "");
    EXPECT_TRUE(lonely.atEnd());
}

TEST(TextInputValues, WhatFollowsAQuotedStringIsTheNextValue) {
    TextInput input("\"a\"b,\"c\" \"d\"");
    for (const char* value : {"a", "b", "c", "d"}) EXPECT_EQ(input.readText(), value);
}

TEST(TextInputValues, NulBytesStayInTheValue) {
    TextInput input("\"a\0b\",\0"s);
    EXPECT_EQ(input.readText(), "a\0b"s);
    EXPECT_EQ(input.readText(), "\0"s);
}

TEST(TextInputValues, ReadingPastTheEndFails) {
    TextInput input("1\r\n   ");
    EXPECT_EQ(input.readInteger(), 1);
    EXPECT_EQ(failureOf([&] { (void)input.readText(); }), 62);
    EXPECT_EQ(failureOf([&] { (void)input.readInteger(); }), 62);
    EXPECT_EQ(failureOf([&] { (void)input.readNumber(); }), 62);
}

TEST(TextInputNumbers, QuotedNumbersCount) {
    TextInput input("\"11.00\",\" -3 \"");
    EXPECT_EQ(input.readNumber(), 11.0F);
    EXPECT_EQ(input.readInteger(), -3);
}

TEST(TextInputNumbers, FractionsRoundHalvesToEven) {
    TextInput input("2.5,3.5,-2.5,7.49");
    for (const int value : {2, 4, -2, 7}) EXPECT_EQ(input.readInteger(), value);
}

TEST(TextInputNumbers, AnEmptyValueIsZero) {
    TextInput input(",\"\",   ,5");
    for (const int value : {0, 0, 0, 5}) EXPECT_EQ(input.readInteger(), value);
}

TEST(TextInputNumbers, SixteenBitsOverflowBothWays) {
    TextInput input("32767,-32768,32768,-32769,1e999");
    EXPECT_EQ(input.readInteger(), 32767);
    EXPECT_EQ(input.readInteger(), -32768);
    for (int value = 0; value < 3; ++value)
        EXPECT_EQ(failureOf([&] { (void)input.readInteger(); }), 6);
}

TEST(TextInputNumbers, WhatIsNoNumberIsATypeMismatch) {
    TextInput input("abc,1x,\"1,5\",0x10,inf,\0"s);
    for (int value = 0; value < 6; ++value)
        EXPECT_EQ(failureOf([&] { (void)input.readInteger(); }), 13) << value;
    EXPECT_TRUE(input.atEnd());
}

TEST(TextInputNumbers, NumbersBeyondFloatOverflow) {
    TextInput input("3e38,1e39,-1e39");
    EXPECT_EQ(input.readNumber(), 3e38F);
    EXPECT_EQ(failureOf([&] { (void)input.readNumber(); }), 6);
    EXPECT_EQ(failureOf([&] { (void)input.readNumber(); }), 6);
}

TEST(TextInputMixed, LinesAndValuesShareOnePosition) {
    TextInput input("'comment\r\n15,19200\r\n\r\n'more\r\n\"Arial\",\"11.00\"");
    EXPECT_EQ(input.readLine(), "'comment");
    EXPECT_EQ(input.readInteger(), 15);
    EXPECT_EQ(input.readInteger(), 19200);
    EXPECT_EQ(input.readLine(), "");
    EXPECT_EQ(input.readLine(), "'more");
    EXPECT_EQ(input.readText(), "Arial");
    EXPECT_EQ(input.readNumber(), 11.0F);
}

} // namespace
} // namespace toolkit
