#include "form/options_file.h"

#include <limits>

#include <gtest/gtest.h>

#include "form/write_options.h"
#include "layout/skip_comment.h"

namespace zev {
namespace {

OptionLine parsed(std::string_view line) { return parseOption(line).value(); }

TEST(OptionLine, IsKeyAndValue) {
    const OptionLine line = parsed("  NarrowFont =  Arial Narrow  ");
    EXPECT_EQ(line.key, "narrowfont");
    EXPECT_EQ(line.value, "Arial Narrow");
}

TEST(OptionLine, IsNoneWithoutAnEqualsSign) {
    EXPECT_FALSE(parseOption("Zoom 5"));
    EXPECT_FALSE(parseOption(""));
}

TEST(OptionLine, EndsTheKeyAtTheFirstEqualsSign) {
    EXPECT_EQ(parsed("Name=a=b").value, "a=b");
    EXPECT_EQ(parsed("=x").key, "");
}

TEST(OptionLine, LosesItsComment) {
    EXPECT_EQ(parsed("Name=Joe             'User name").value, "Joe");
    EXPECT_EQ(parsed("Name=Joe  '").value, "Joe");
}

TEST(OptionLine, KeepsAQuoteBehindASingleBlank) {
    EXPECT_EQ(parsed("Name=Joe 'Ace' Doe").value, "Joe 'Ace' Doe");
    EXPECT_EQ(parsed("Name=O'Neill  'User name").value, "O'Neill");
}

TEST(OptionLine, IsCutInsideANameWithTwoBlanksAndAQuote) {
    EXPECT_EQ(parsed("Name=Joe  'Ace' Doe     'User name").value, "Joe");
}

TEST(OptionLine, HasNoValueWhereItBeginsWithAQuote) {
    EXPECT_EQ(parsed("Name='Joe'").value, "");
    EXPECT_EQ(parsed("Name=        'User name").value, "");
    EXPECT_EQ(parsed("Trace=  '1").number, 0);
}

TEST(OptionLine, TrimsBlanksOnly) { EXPECT_EQ(parsed("Name=\tJoe ").value, "\tJoe"); }

TEST(OptionLine, LowersLettersOfTheCodePage) { EXPECT_EQ(parsed("\xC9=1").key, "\xE9"); }

TEST(OptionLine, BeginsWithANumber) {
    EXPECT_EQ(parsed("Zoom=7").number, 7);
    EXPECT_EQ(parsed("Zoom=7 levels").number, 7);
    EXPECT_EQ(parsed("Zoom=1 'x").number, 1);
    EXPECT_EQ(parsed("ColorScheme=-1      'x").number, -1);
    EXPECT_EQ(parsed("ColorScheme=16777215").number, 16777215);
}

TEST(OptionLine, RoundsHalvesToEven) {
    EXPECT_EQ(parsed("Zoom=4.5").number, 4);
    EXPECT_EQ(parsed("Zoom=5.5").number, 6);
    EXPECT_EQ(parsed("Zoom=4.51").number, 5);
    EXPECT_EQ(parsed("Zoom=-0.5").number, 0);
}

TEST(OptionLine, HasNumberZeroForATextThatIsNone) {
    for (const char* line : {"Zoom=", "Zoom=x7", "Zoom=nan", "Zoom=inf", "Zoom=-", "Zoom=."})
        EXPECT_EQ(parsed(line).number, 0) << line;
}

TEST(OptionLine, SaturatesNumbersBeyondAllBounds) {
    EXPECT_EQ(parsed("Zoom=99999999999999999999").number, std::numeric_limits<int>::max());
    EXPECT_EQ(parsed("Zoom=1e999").number, std::numeric_limits<int>::max());
    EXPECT_EQ(parsed("Zoom=-1e999").number, std::numeric_limits<int>::min());
    EXPECT_EQ(parsed("Zoom=1e-999").number, 0);
}

TEST(OptionLine, MayBeVeryLong) {
    const std::string name(10'000'000, 'x');
    EXPECT_EQ(parsed("Name=" + name + "    'comment").value.size(), name.size());
    EXPECT_EQ(parsed("Zoom=" + std::string(10'000'000, '9')).number,
              std::numeric_limits<int>::max());
    EXPECT_FALSE(parseOption(name));
}

/// The options that a file's lines give, read as the program does.
std::vector<OptionLine> readAll(std::string content) {
    toolkit::TextInput input(std::move(content));
    std::string version;
    std::vector<OptionLine> options;
    while (!skipComments(input, version)) {
        if (const auto option = parseOption(input.readLine())) options.push_back(*option);
    }
    return options;
}

TEST(OptionsFile, OfCommentsOnlyGivesNothing) {
    EXPECT_TRUE(readAll("' Zoom=5\r\n\r\n'Program version: 2.0.0\r\n   \r\n").empty());
}

TEST(OptionsFile, PassesOverLinesWithoutAnEqualsSign) {
    const auto options = readAll("nonsense\r\nZoom=5\r\nTrace=1");
    ASSERT_EQ(options.size(), 2U);
    EXPECT_EQ(options[0].key, "zoom");
    EXPECT_EQ(options[1].number, 1);
}

TEST(OptionsFile, IsReadBackAsItWasWritten) {
    OptionsDocument document;
    document.name = "Joe O'Neill";
    document.number = "12345";
    document.color = true;
    document.zoom = 7;
    document.colorScheme = 255;
    document.normalFont = "Arial";
    const auto options = readAll(writeOptions(document));
    const auto valueOf = [&](std::string_view key) {
        for (const OptionLine& option : options)
            if (option.key == key) return option.value;
        return std::string("absent");
    };
    EXPECT_EQ(options.size(), 18U);
    EXPECT_EQ(valueOf("name"), "Joe O'Neill");
    EXPECT_EQ(valueOf("number"), "12345");
    EXPECT_EQ(valueOf("mono"), "0");
    EXPECT_EQ(valueOf("color"), "1");
    EXPECT_EQ(valueOf("zoom"), "7");
    EXPECT_EQ(valueOf("colorscheme"), "255");
    EXPECT_EQ(valueOf("normalfont"), "Arial");
}

TEST(OptionsFile, SurvivesAnyByteInAnyPlaceAndAnyTruncation) {
    OptionsDocument document;
    document.name = "Joe";
    const std::string whole = writeOptions(document);
    const std::size_t count = readAll(whole).size();
    ASSERT_GT(count, 10U);
    for (std::size_t place = 0; place < whole.size(); ++place) {
        ASSERT_LE(readAll(whole.substr(0, place)).size(), count);
        for (const char byte : {'\0', '=', '\'', '\r', '9', '\xFF'}) {
            std::string damaged = whole;
            damaged[place] = byte;
            ASSERT_LE(readAll(damaged).size(), count + 1);
        }
    }
}

} // namespace
} // namespace zev
