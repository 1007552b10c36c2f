#include "toolkit/text/typed_text.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(TypedText, SuitSignsBecomeEscapesBlackOrWhite) {
    EXPECT_EQ(ansiFromTyped("1\u2663 2\u2666 3\u2665 4\u2660"), "1^c 2^d 3^h 4^s");
    EXPECT_EQ(ansiFromTyped("1\u2667 2\u2662 3\u2661 4\u2664"), "1^c 2^d 3^h 4^s");
}

TEST(TypedText, NeighbouringSuitSignsAreKeptApart) {
    EXPECT_EQ(ansiFromTyped("\u2663\u2666\u2665\u2660"), "^c ^d ^h ^s");
    EXPECT_EQ(ansiFromTyped("\u2663 \u2666"), "^c ^d");
    EXPECT_EQ(ansiFromTyped("^c\u2660^h"), "^c ^s ^h");
}

TEST(TypedText, SuitSignsAreKeptApartFromEscapesAroundThem) {
    EXPECT_EQ(ansiFromTyped("\u2660", {"^H", "^C"}), " ^s ");
    EXPECT_EQ(ansiFromTyped("\u2660", {"h", "c"}), "^s");
    EXPECT_EQ(ansiFromTyped("1\u2660!", {"^H", "^C"}), "1^s!");
}

TEST(TypedText, WhatIsWrittenAsAnEscapeStaysAsItIs) {
    EXPECT_EQ(ansiFromTyped("^H^s^x^"), "^H^s^x^");
}

TEST(TypedText, SuitSignsFromAPictureKeyboardLeaveNothingBehind) {
    EXPECT_EQ(ansiFromTyped("\u2665\uFE0F!"), "^h!");
    EXPECT_EQ(ansiFromTyped("\u2665\uFE0F\u2660\uFE0F"), "^h ^s");
}

TEST(TypedText, LettersWithACircumflexAreTheEscapesThatWereMeant) {
    EXPECT_EQ(ansiFromTyped("1\u0109 2\u0125 3\u015D 4\u0108\u0124\u015C"),
              "1^c 2^h 3^s 4^C ^H ^S");
    EXPECT_EQ(ansiFromTyped("h\u0302d\u0302D\u0302"), "^h ^d ^D");
    EXPECT_EQ(ansiFromTyped("\u00EA"), "\xEA");
}

TEST(TypedText, TabsAndLineEndsBecomeOneBlank) {
    EXPECT_EQ(ansiFromTyped("a\tb\r\nc\nd\re\u2028f\u0085g"), "a b c d e f g");
    EXPECT_EQ(ansiFromTyped("a\t\t\r\n\nb"), "a b");
    EXPECT_EQ(ansiFromTyped("a\n"), "a ");
}

TEST(TypedText, OtherControlCharactersAreDropped) {
    EXPECT_EQ(ansiFromTyped("a\x01\x7F\u0090\u200D\uFEFF"
                            "b"),
              "ab");
}

TEST(TypedText, KeepsWhatTheCodePageHas) {
    EXPECT_EQ(ansiFromTyped("\u00E9\u20AC\u00A0\u00D8"), "\xE9\x80\xA0\xD8");
    EXPECT_EQ(ansiFromTyped("u\u0308"), "\xFC");
}

TEST(TypedText, LettersThatTheCodePageLacksBecomeTheirBaseLetters) {
    EXPECT_EQ(ansiFromTyped("\u0141\u00F3d\u017A"), "L\xF3"
                                                    "dz");
    EXPECT_EQ(ansiFromTyped("\u0110\u0111\u0126\u0127\u0131\u0138\u0142\u014B\u0167"), "DdHhiklnt");
    EXPECT_EQ(ansiFromTyped("\u010D\u0159\u1EC7x\u030C"), "crex");
    EXPECT_EQ(ansiFromTyped("\uFB01\uFF21\u2003\u2010"), "fiA -");
}

TEST(TypedText, WithoutABaseLetterThereIsAQuestionMark) {
    EXPECT_EQ(ansiFromTyped("\u4E2D\u0416\u0439\U0001F600"), "????");
    EXPECT_EQ(ansiFromTyped("\u2260\u02D8"), "??");
    EXPECT_EQ(ansiFromTyped("a\xFFz"), "a?z");
}

TEST(TypedText, OthersGetTheSignsOfTheSuits) {
    EXPECT_EQ(utf8ForOthers("1^c 2^D^h^S"), "1\u2663 2\u2666\u2665\u2660");
    EXPECT_EQ(utf8ForOthers("^x^"), "^x^");
    EXPECT_EQ(utf8ForOthers("M\xFC & co"), "M\u00FC & co");
}

TEST(TypedText, OthersGetNoNoBreakSpaces) { EXPECT_EQ(utf8ForOthers("a\xA0\xA0\xA0z"), "a   z"); }

} // namespace
} // namespace toolkit
