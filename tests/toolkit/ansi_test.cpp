#include "toolkit/base/ansi.h"

#include <set>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(Ansi, EveryByteSurvivesTheWayToUnicodeAndBack) {
    for (int value = 0; value < 256; ++value) {
        const char character = static_cast<char>(value);
        EXPECT_EQ(ansiOf(unicodeOf(character)), character) << value;
    }
}

TEST(Ansi, NoTwoBytesShareAUnicodeValue) {
    std::set<char32_t> values;
    for (int value = 0; value < 256; ++value) values.insert(unicodeOf(static_cast<char>(value)));
    EXPECT_EQ(values.size(), 256U);
}

TEST(Ansi, AllBytesAsOneTextSurviveUtf8) {
    std::string text;
    for (int value = 0; value < 256; ++value) text += static_cast<char>(value);
    EXPECT_EQ(ansiFromUtf8(utf8FromAnsi(text)), text);
}

TEST(Ansi, CodesOfTheSpecialRangeAreThoseOfTheCodePage) {
    EXPECT_EQ(unicodeOf('\x80'), U'\u20AC');
    EXPECT_EQ(unicodeOf('\x8A'), U'\u0160');
    EXPECT_EQ(unicodeOf('\x92'), U'\u2019');
    EXPECT_EQ(unicodeOf('\x95'), U'\u2022');
    EXPECT_EQ(unicodeOf('\x96'), U'\u2013');
    EXPECT_EQ(unicodeOf('\x99'), U'\u2122');
    EXPECT_EQ(unicodeOf('\x9F'), U'\u0178');
    EXPECT_EQ(unicodeOf(superscriptTwo), U'\u00B2');
    EXPECT_EQ(unicodeOf('\xE9'), U'\u00E9');
}

TEST(Ansi, UnusedBytesMapToThemselves) {
    for (const unsigned value : {0x81U, 0x8DU, 0x8FU, 0x90U, 0x9DU})
        EXPECT_EQ(unicodeOf(static_cast<char>(value)), char32_t{value});
}

TEST(Ansi, ControlCodesThatTheCodePageUsesForLettersAreNotInIt) {
    EXPECT_EQ(ansiOf(U'\u0080'), std::nullopt);
    EXPECT_EQ(ansiOf(U'\u009F'), std::nullopt);
}

TEST(Ansi, CharactersBeyondTheCodePageBecomeQuestionMarks) {
    EXPECT_EQ(ansiFromUtf8("a\u0141b\U0001F600c"), "a?b?c");
    EXPECT_EQ(ansiFromUtf8("\u2665"), "?");
}

TEST(Ansi, MalformedUtf8BecomesQuestionMarks) {
    EXPECT_EQ(ansiFromUtf8("a\xFFz"), "a?z");
    EXPECT_EQ(ansiFromUtf8("a\xC3"), "a?");
    EXPECT_EQ(ansiFromUtf8("\xC3z"), "?z");
}

TEST(Ansi, LowerCaseCoversTheLettersOfTheCodePage) {
    EXPECT_EQ(lowerCase("ABZ019[@`"), "abz019[@`");
    EXPECT_EQ(lowerCase('\xC9'), '\xE9');
    EXPECT_EQ(lowerCase('\xDE'), '\xFE');
    EXPECT_EQ(lowerCase('\x8A'), '\x9A');
    EXPECT_EQ(lowerCase('\x8C'), '\x9C');
    EXPECT_EQ(lowerCase('\x8E'), '\x9E');
    EXPECT_EQ(lowerCase('\x9F'), '\xFF');
}

TEST(Ansi, LowerCaseLeavesSignsAlone) {
    EXPECT_EQ(lowerCase('\xD7'), '\xD7');
    EXPECT_EQ(lowerCase('\xDF'), '\xDF');
    EXPECT_EQ(lowerCase('\xF7'), '\xF7');
    EXPECT_EQ(lowerCase('\x80'), '\x80');
}

TEST(Ansi, TextsCompareWithoutCase) {
    EXPECT_TRUE(equalWithoutCase("Caf\xC9.Zev", "cAF\xE9.zEV"));
    EXPECT_FALSE(equalWithoutCase("ab", "abc"));
    EXPECT_FALSE(equalWithoutCase("ab", "ac"));
}

TEST(Ansi, CodesCompareUnsigned) { EXPECT_GT(code('\xE9'), code('z')); }

TEST(Ansi, TrimCutsBlanksOnly) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
    EXPECT_EQ(trim(" \ta\xA0\n "), "\ta\xA0\n");
}

} // namespace
} // namespace toolkit
