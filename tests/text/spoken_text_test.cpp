#include "text/spoken_text.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

std::string said(std::string_view typed) { return SpokenText(typed).text(); }

std::string replaced(const SpokenText& text, int start, int end, std::string_view inserted) {
    return text.replaced(start, end, inserted);
}

TEST(SpokenText, SaysSuitsAsWords) {
    EXPECT_EQ(said("from 4^h up"), "from 4 hearts up");
    EXPECT_EQ(said("^C"), "clubs");
    EXPECT_EQ(said("^d^s"), "diamonds spades");
    EXPECT_EQ(said("4^s: minors"), "4 spades: minors");
    EXPECT_EQ(said("2^hT"), "2 hearts T");
    EXPECT_EQ(said("(^h)"), "(hearts)");
    EXPECT_EQ(said("caf\xE9^h\xC9t"), "caf\xE9 hearts \xC9t");
}

TEST(SpokenText, LeavesEverythingElse) {
    EXPECT_EQ(said(""), "");
    EXPECT_EQ(said("15-17 & ^x ^"), "15-17 & ^x ^");
}

TEST(SpokenText, IsReplacedWhole) {
    EXPECT_EQ(replaced(SpokenText("4^h"), 0, 8, "5^s"), "5^s");
    EXPECT_EQ(replaced(SpokenText(""), 0, 0, "new"), "new");
    EXPECT_EQ(replaced(SpokenText("old"), 0, 3, ""), "");
}

TEST(SpokenText, IsReplacedInPart) {
    const SpokenText text("4^h up"); // 4 hearts up
    EXPECT_EQ(replaced(text, 0, 1, "5"), "5^h up");
    EXPECT_EQ(replaced(text, 9, 11, "down"), "4^h down");
    EXPECT_EQ(replaced(text, 11, 11, "!"), "4^h up!");
    // A word of a suit goes whole.
    EXPECT_EQ(replaced(text, 3, 5, "^s"), "4^s up");
    EXPECT_EQ(replaced(text, 1, 8, ""), "4 up");
}

TEST(SpokenText, TheBlanksOfItsWordsStandForNothing) {
    const SpokenText text("4^hx"); // 4 hearts x
    EXPECT_EQ(replaced(text, 8, 8, "!"), "4^h!x");
    EXPECT_EQ(replaced(text, 8, 9, ""), "4^hx");
    EXPECT_EQ(replaced(text, 1, 2, ""), "4^hx");
}

TEST(SpokenText, WhatStaysTheSameStaysAsItWasTyped) {
    const SpokenText text("4^h up, 5^s"); // 4 hearts up, 5 spades
    EXPECT_EQ(replaced(text, 0, 22, "4 hearts up, 6 spades"), "4^h up, 6^s");
    EXPECT_EQ(replaced(text, 0, 22, "4 hearts up, 5 spades"), "4^h up, 5^s");
    // A word of which another one keeps a part is another word.
    EXPECT_EQ(replaced(SpokenText("4^h"), 2, 8, "hands"), "4 hands");
    EXPECT_EQ(replaced(SpokenText("4^h"), 0, 8, "4 helps"), "4 helps");
    EXPECT_EQ(replaced(SpokenText("aa"), 0, 2, "aaa"), "aaa");
    EXPECT_EQ(replaced(SpokenText("aaa"), 0, 3, "aa"), "aa");
}

TEST(SpokenText, TellsWhatStandsAroundAPlace) {
    const TypedAround around = SpokenText("4^h up").around(2, 5);
    EXPECT_EQ(around.before, "4");
    EXPECT_EQ(around.after, " up");
}

TEST(SpokenText, PlacesOutsideAreItsEnds) {
    EXPECT_EQ(replaced(SpokenText("abc"), -5, 99, "x"), "x");
    EXPECT_EQ(replaced(SpokenText("abc"), 99, 1, "x"), "abcx");
}

} // namespace
} // namespace zev
