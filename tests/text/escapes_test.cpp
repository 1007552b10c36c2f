#include "text/escapes.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

std::string doubled(std::string text) {
    AmpAdd(text);
    return text;
}

std::string undoubled(std::string text) {
    AmpRem(text);
    return text;
}

TEST(Ampersands, AreDoubled) {
    EXPECT_EQ(doubled("a&b"), "a&&b");
    EXPECT_EQ(doubled("a&"), "a&&");
    EXPECT_EQ(doubled("&"), "&&");
    EXPECT_EQ(doubled("a & b & c"), "a && b && c");
}

TEST(Ampersands, StayWhereTheyAreDoubledAlready) {
    EXPECT_EQ(doubled("a&&b"), "a&&b");
    EXPECT_EQ(doubled("a&&&&b"), "a&&&&b");
}

TEST(Ampersands, AreDoubledPairByPair) {
    EXPECT_EQ(doubled("a&&&b"), "a&&&&b");
    EXPECT_EQ(doubled("plain"), "plain");
    EXPECT_EQ(doubled(""), "");
}

TEST(Ampersands, CollapseToASingleOne) {
    EXPECT_EQ(undoubled("a&&b"), "a&b");
    EXPECT_EQ(undoubled("a&&&&b"), "a&b");
    EXPECT_EQ(undoubled("&&&"), "&");
    EXPECT_EQ(undoubled("a&b"), "a&b");
    EXPECT_EQ(undoubled("aabb"), "aabb");
}

TEST(Ampersands, AreExactlyTwoAfterBoth) {
    for (const char* text : {"&", "&&", "&&&", "&&&&&"}) EXPECT_EQ(doubled(undoubled(text)), "&&");
}

constexpr std::string_view threeBlanks = "\xA0\xA0\xA0";

TEST(BlankEscapes, LeaveATextWithoutThem) {
    const BlankedText blanked = blankEscapes("plain && simple");
    EXPECT_EQ(blanked.caption, "plain && simple");
    EXPECT_EQ(blanked.scanBuffer, "plain && simple");
    EXPECT_EQ(blankEscapes("").caption, "");
}

TEST(BlankEscapes, BecomeThreeBlanks) {
    const BlankedText blanked = blankEscapes("4^h or 5^s!");
    EXPECT_EQ(blanked.caption, "4\xA0\xA0\xA0 or 5\xA0\xA0\xA0!");
    EXPECT_EQ(blanked.scanBuffer, "4^h\xA0 or 5^s\xA0!");
}

TEST(BlankEscapes, LowerTheLetterForTheScan) {
    EXPECT_EQ(blankEscapes("^H").scanBuffer, "^h\xA0");
    EXPECT_EQ(blankEscapes("^\xC9").scanBuffer, "^\xE9\xA0");
}

TEST(BlankEscapes, BlankAnyLetter) {
    EXPECT_EQ(blankEscapes("^x").caption, threeBlanks);
    EXPECT_EQ(blankEscapes("^x").scanBuffer, "^x\xA0");
    EXPECT_EQ(blankEscapes("^^h").caption, "\xA0\xA0\xA0h");
}

TEST(BlankEscapes, BlankACaretAtTheEnd) {
    EXPECT_EQ(blankEscapes("a^").caption, "a\xA0\xA0\xA0");
    EXPECT_EQ(blankEscapes("a^").scanBuffer, "a^\xA0");
}

TEST(BlankEscapes, PassOverACaretRightBehindAnEscape) {
    const BlankedText blanked = blankEscapes("^h^s");
    EXPECT_EQ(blanked.caption, "\xA0\xA0\xA0^s");
    EXPECT_EQ(blanked.scanBuffer, "^h\xA0^s");
    EXPECT_EQ(blankEscapes("^h^S").scanBuffer, "^h\xA0^S");
}

TEST(BlankEscapes, GoOnBehindACaretPassedOver) {
    EXPECT_EQ(blankEscapes("^h^s^d").caption, "\xA0\xA0\xA0^s\xA0\xA0\xA0");
    EXPECT_EQ(blankEscapes("^h^^d").caption, "\xA0\xA0\xA0^\xA0\xA0\xA0");
    EXPECT_EQ(blankEscapes("^h ^s").caption, "\xA0\xA0\xA0 \xA0\xA0\xA0");
}

/// The same rules in other code, step by step on both strings.
BlankedText blankedStepByStep(std::string_view raw) {
    BlankedText blanked{std::string(raw), std::string(raw)};
    std::size_t place = 0;
    while ((place = blanked.scanBuffer.find('^', place)) != std::string::npos) {
        const std::string letter = blanked.scanBuffer.substr(place + 1, 1);
        const std::string lowered = letter.empty() || letter[0] < 'A' || letter[0] > 'Z'
                                        ? letter
                                        : std::string(1, static_cast<char>(letter[0] + 32));
        const auto replace = [&](std::string& text, const std::string& by) {
            text.replace(place, 2, by);
        };
        replace(blanked.caption, std::string(threeBlanks));
        replace(blanked.scanBuffer, "^" + lowered + "\xA0");
        place += 4;
    }
    return blanked;
}

TEST(BlankEscapes, AgreeWithTheRulesForAllShortTexts) {
    constexpr std::string_view alphabet = "^hS&a";
    for (int number = 0; number < 5 * 5 * 5 * 5 * 5 * 5 * 5; ++number) {
        std::string text;
        for (int rest = number; rest > 0; rest /= 5)
            text += alphabet[static_cast<std::size_t>(rest % 5)];
        const BlankedText expected = blankedStepByStep(text);
        const BlankedText blanked = blankEscapes(text);
        ASSERT_EQ(blanked.caption, expected.caption) << text;
        ASSERT_EQ(blanked.scanBuffer, expected.scanBuffer) << text;
    }
}

std::vector<std::pair<int, int>> suitsIn(std::string_view scanBuffer) {
    std::vector<std::pair<int, int>> suits;
    for (const SuitPlace& place : suitPlaces(scanBuffer))
        suits.emplace_back(place.position, place.suit);
    return suits;
}

using Suits = std::vector<std::pair<int, int>>;

TEST(SuitPlaces, TellTheFourSuitsApart) {
    EXPECT_EQ(suitsIn(blankEscapes("^c ^d ^h ^s").scanBuffer),
              (Suits{{1, 1}, {5, 2}, {9, 3}, {13, 4}}));
}

TEST(SuitPlaces, AreTheSameForCapitalLetters) {
    EXPECT_EQ(suitsIn(blankEscapes("4^H").scanBuffer), (Suits{{2, 3}}));
}

TEST(SuitPlaces, HoldAnEscapeThatWasPassedOver) {
    EXPECT_EQ(suitsIn(blankEscapes("^h^s").scanBuffer), (Suits{{1, 3}, {4, 4}}));
}

TEST(SuitPlaces, HoldNoCapitalThatWasPassedOver) {
    EXPECT_EQ(suitsIn(blankEscapes("^h^S").scanBuffer), (Suits{{1, 3}}));
}

TEST(SuitPlaces, HoldNoOtherLetters) {
    EXPECT_EQ(suitsIn(blankEscapes("^x^ ^^").scanBuffer), Suits{});
}

TEST(SuitPlaces, HoldNoCaretAtTheEnd) {
    EXPECT_EQ(suitsIn(blankEscapes("^h^").scanBuffer), (Suits{{1, 3}}));
    EXPECT_EQ(suitsIn(blankEscapes("a^").scanBuffer), Suits{});
}

TEST(SuitPlaces, AreThoseOfTheCaptionWithItsDoubledAmpersands) {
    EXPECT_EQ(suitsIn(blankEscapes("a && b^d").scanBuffer), (Suits{{7, 2}}));
}

TEST(Escapes, TakeVeryLongTextsInOneGo) {
    std::string text;
    for (int i = 0; i < 2'500'000; ++i) text += "^h &";
    const BlankedText blanked = blankEscapes(text);
    EXPECT_EQ(blanked.caption.size(), 12'500'000U);
    EXPECT_EQ(suitPlaces(blanked.scanBuffer).size(), 2'500'000U);
    AmpAdd(text);
    EXPECT_EQ(text.size(), 12'500'000U);
    AmpRem(text);
    EXPECT_EQ(text.size(), 10'000'000U);
}

} // namespace
} // namespace zev
