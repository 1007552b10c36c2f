#include "toolkit/text/font.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

FontSpec arial(float size) { return {.Name = "Arial", .Size = size}; }

TEST(Font, WidthIsTheSumOfTheCharactersWidths) {
    const FontSpec font = arial(11);
    EXPECT_FLOAT_EQ(textWidth(font, "AVA"), textWidth(font, "A") * 2 + textWidth(font, "V"));
    EXPECT_EQ(textWidth(font, ""), 0);
}

TEST(Font, WidthIsThatOfTheDesignOutlines) {
    // Of 2048 units an "i" takes 455, a "W" 1933 and a figure 1139.
    EXPECT_FLOAT_EQ(textWidth(arial(1), "i"), 455 * 20.0F / 2048);
    EXPECT_FLOAT_EQ(textWidth(arial(1), "W"), 1933 * 20.0F / 2048);
    EXPECT_FLOAT_EQ(textWidth(arial(8.25F), "2026"), 4 * 1139 * 8.25F * 20 / 2048);
}

TEST(Font, WidthScalesExactlyWithTheSize) {
    const std::string text = "15-17 NT, Weak 2\xA0";
    const float unit = textWidth(arial(1), text);
    for (const float size : {2.2F, 4.675F, 8.25F, 11.0F, 17.5F, 40.0F})
        EXPECT_NEAR(textWidth(arial(size), text), unit * size, unit * size * 1e-6) << size;
    EXPECT_EQ(textWidth(arial(22), text), textWidth(arial(11), text) * 2);
}

TEST(Font, HeightAndAscentScaleExactlyWithTheSize) {
    EXPECT_EQ(textHeight(arial(22)), textHeight(arial(11)) * 2);
    EXPECT_FLOAT_EQ(textHeight(arial(1)), (1854 + 434) * 20.0F / 2048);
    EXPECT_FLOAT_EQ(textAscent(arial(1)), 1854 * 20.0F / 2048);
}

TEST(Font, HeightAndAscentAreThoseOfTheFontsHeader) {
    // Its other table says 1888 and 431.
    const FontSpec narrow{.Name = "Arial Narrow", .Size = 1};
    EXPECT_FLOAT_EQ(textHeight(narrow), (1916 + 434) * 20.0F / 2048);
    EXPECT_FLOAT_EQ(textAscent(narrow), 1916 * 20.0F / 2048);
}

TEST(Font, Code160IsAsWideAsABlank) {
    for (const char* name : {"Arial", "Arial Narrow", "Symbol"}) {
        const FontSpec font{.Name = name, .Size = 11};
        EXPECT_EQ(textWidth(font, "\xA0"), textWidth(font, " ")) << name;
        EXPECT_GT(textWidth(font, " "), 0) << name;
    }
}

TEST(Font, BoldIsWiderAndNarrowIsNarrower) {
    FontSpec bold = arial(11);
    bold.Bold = true;
    const FontSpec narrow{.Name = "Arial Narrow", .Size = 11};
    const std::string text = "Weak jump shift";
    EXPECT_GT(textWidth(bold, text), textWidth(arial(11), text));
    EXPECT_LT(textWidth(narrow, text), textWidth(arial(11), text) * 0.9F);
}

TEST(Font, BytesAreCharactersOfTheCodePage) {
    const FontSpec font = arial(11);
    EXPECT_EQ(textWidth(font, "\xE9"), textWidth(font, "e"));
    EXPECT_EQ(textWidth(font, "\x97"), textWidth(font, "\x97\x97") / 2);
    // A dash as long as the font is high; the byte's own number would be a control character.
    EXPECT_FLOAT_EQ(textWidth(font, "\x97"), 11 * 20);
}

TEST(Font, AnAmpersandIsNoEscape) {
    EXPECT_EQ(textWidth(arial(11), "&&"), textWidth(arial(11), "&") * 2);
}

TEST(Font, ALineEndsAtABlankAndTearsNoWord) {
    const FontSpec font = arial(11);
    const std::string text = "opens 15-17 2/1";
    const auto lengthWithin = [&](std::string_view shown) {
        return lengthOfLine(font, text, textWidth(font, shown) + 1);
    };
    EXPECT_EQ(lengthWithin("opens 15-1"), 5U);
    EXPECT_EQ(lengthWithin("opens 15-17"), 11U);
    EXPECT_EQ(lengthWithin("opens 15-17 2/"), 11U);
    EXPECT_EQ(lengthWithin(text), text.size());
}

TEST(Font, ALineHasAWordHoweverNarrowItIs) {
    EXPECT_EQ(lengthOfLine(arial(11), "Notrump", 0), 7U);
    EXPECT_EQ(lengthOfLine(arial(11), "Notrump opens", 0), 7U);
    EXPECT_EQ(lengthOfLine(arial(11), "", 0), 0U);
}

TEST(Font, ATextIsWrappedAtBlanksThatFallAway) {
    using Lines = std::vector<std::string_view>;
    const FontSpec font = arial(11);
    const float room = textWidth(font, "one two") + 1;
    EXPECT_EQ(wrappedLines(font, "one two one two three", room),
              (Lines{"one two", "one two", "three"}));
    EXPECT_EQ(wrappedLines(font, "one", 0), Lines{"one"});
    EXPECT_EQ(wrappedLines(font, "", room), Lines{});
}

TEST(Font, AStandInReportsTheNameAskedFor) {
    for (const char* name : {"Arial", "Arial Narrow", "Wingdings", "Symbol", "arial"})
        EXPECT_EQ(fontNameGiven(name), name);
}

TEST(Font, AnInstalledFontReportsItsName) {
    EXPECT_EQ(fontNameGiven("Liberation Sans"), "Liberation Sans");
    EXPECT_EQ(fontNameGiven("Zevlin Suits"), "Zevlin Suits");
}

TEST(Font, AMissingFontReportsTheOneUsedInItsPlace) {
    for (const char* name : {"No Such Font", "Wingdings 2", "Arial, Liberation Sans", "\xFF\x80"}) {
        const std::string given = fontNameGiven(name);
        EXPECT_NE(given, name);
        EXPECT_EQ(fontNameGiven(given), given);
        EXPECT_GT(textWidth({.Name = name, .Size = 11}, "x"), 0);
    }
}

TEST(Font, NoNameAtAllIsTheUsualFont) {
    EXPECT_EQ(fontNameGiven(""), "Arial");
    EXPECT_EQ(textWidth({.Name = "", .Size = 11}, "abc"), textWidth(arial(11), "abc"));
}

TEST(Font, MarksAndSuitsHaveTheirCharacters) {
    const FontSpec marks{.Name = "Wingdings", .Size = 18};
    const FontSpec suits{.Name = "Symbol", .Size = 15};
    const FontSpec same{.Name = "Zevlin Marks", .Size = 18};
    for (const char* character : {"\xFC", "\x6E", "\xA1"}) {
        EXPECT_GT(textWidth(marks, character), 18 * 20 / 2) << character;
        EXPECT_EQ(textWidth(marks, character), textWidth(same, character)) << character;
    }
    for (const char* character : {"\xA7", "\xA8", "\xA9", "\xAA"})
        EXPECT_GT(textWidth(suits, character), 15 * 20 / 3) << character;
}

TEST(Font, ATextThatIsTooLongKeepsItsBeginningAndItsEnd) {
    const FontSpec font = arial(10);
    const std::string text = "/home/joe/Documents/ZEV";
    EXPECT_EQ(shortened(font, text, textWidth(font, text), Cut::Middle), text);
    EXPECT_EQ(shortened(font, text, textWidth(font, "/home/jo...nts/ZEV") + 1, Cut::Middle),
              "/home/jo...nts/ZEV");
    const std::string less = shortened(font, text, textWidth(font, text) - 1, Cut::Middle);
    EXPECT_LT(textWidth(font, less), textWidth(font, text));
    EXPECT_EQ(less.substr(0, 6), text.substr(0, 6));
    EXPECT_EQ(less.substr(less.size() - 6), text.substr(text.size() - 6));
    EXPECT_EQ(shortened(font, text, 0, Cut::Middle), "...");
    EXPECT_EQ(shortened(font, "", 0, Cut::Middle), "");
}

TEST(Font, ATextThatIsTooLongKeepsAsManyLettersAsFit) {
    const FontSpec font = arial(10);
    const std::string text = "Standard American";
    EXPECT_EQ(shortened(font, text, textWidth(font, text), Cut::End), text);
    for (std::size_t kept = 0; kept < text.size(); ++kept) {
        const std::string shown = text.substr(0, kept) + "...";
        const std::string middle =
            text.substr(0, kept - kept / 2) + "..." + text.substr(text.size() - kept / 2);
        if (textWidth(font, shown) < textWidth(font, text)) {
            EXPECT_EQ(shortened(font, text, textWidth(font, shown), Cut::End), shown);
        }
        if (textWidth(font, middle) < textWidth(font, text)) {
            EXPECT_EQ(shortened(font, text, textWidth(font, middle), Cut::Middle), middle);
        }
    }
    EXPECT_EQ(shortened(font, "m", 0, Cut::End), "...");
}

TEST(Font, SizesAreGivenAsAskedForWithinTheirBounds) {
    EXPECT_EQ(fontSizeGiven(4.675F), 4.675F);
    EXPECT_EQ(fontSizeGiven(0), 1);
    EXPECT_EQ(fontSizeGiven(-3), 1);
    EXPECT_EQ(fontSizeGiven(std::nanf("")), 1);
    EXPECT_EQ(fontSizeGiven(1e9F), 2160);
}

} // namespace
} // namespace toolkit
