#include "toolkit/base/utf8.h"

#include <vector>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

using Values = std::vector<char32_t>;

Values valuesOf(std::string_view utf8) {
    Values values;
    while (const auto value = takeUtf8(utf8)) values.push_back(*value);
    return values;
}

TEST(Utf8, ValuesOfEveryLengthComeBack) {
    for (const char32_t value :
         {0x0U, 0x7FU, 0x80U, 0x7FFU, 0x800U, 0xFFFFU, 0x10000U, 0x10FFFFU}) {
        std::string text;
        appendUtf8(text, value);
        EXPECT_EQ(valuesOf(text), Values{value});
    }
}

TEST(Utf8, OverlongFormsAreMalformed) {
    EXPECT_EQ(valuesOf("\xC0\xAF"), (Values{replacementCharacter, replacementCharacter}));
    EXPECT_EQ(valuesOf("\xE0\x80\xAF").front(), replacementCharacter);
    EXPECT_EQ(valuesOf("\xF0\x80\x80\xAF").front(), replacementCharacter);
}

TEST(Utf8, SurrogatesAndTooLargeValuesAreMalformed) {
    EXPECT_EQ(valuesOf("\xED\xA0\x80").front(), replacementCharacter);
    EXPECT_EQ(valuesOf("\xF4\x90\x80\x80").front(), replacementCharacter);
    EXPECT_EQ(valuesOf("\xF5").front(), replacementCharacter);
}

TEST(Utf8, ACutSequenceIsOneReplacementAndKeepsWhatFollows) {
    EXPECT_EQ(valuesOf("\xE2\x82z"), (Values{replacementCharacter, 'z'}));
    EXPECT_EQ(valuesOf("\xE2\x82"), Values{replacementCharacter});
    EXPECT_EQ(valuesOf("\xE2\xC3\xA9"), (Values{replacementCharacter, 0xE9}));
}

} // namespace
} // namespace toolkit
