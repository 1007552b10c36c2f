#include "help/printed_help.h"

#include <cmath>

#include <gtest/gtest.h>

#include "toolkit/text/font.h"

namespace zev {
namespace {

using Lines = std::vector<std::string>;

const toolkit::FontSpec arial{.Name = "Arial", .Size = 9};

PrintedHelp print(const Lines& lines, PageRoom room = {.width = 10000, .height = 10000}) {
    return printedHelp(arial, lines, "Title", room);
}

Lines textsOf(const PrintedHelp& help) {
    Lines texts;
    for (const auto& line : help.lines) texts.push_back(line.text);
    return texts;
}

/// The number of the line's row on its page.
int rowOf(const PrintedHelp& help, std::size_t line) {
    return static_cast<int>(std::lround(help.lines.at(line).top / toolkit::textHeight(help.font)));
}

TEST(PrintedHelp, TheTitleStandsBetweenTwoEmptyLines) {
    const auto help = print({"one", "", "two"});
    EXPECT_EQ(textsOf(help), (Lines{"Title", "one", "two"}));
    EXPECT_EQ(rowOf(help, 0), 1);
    EXPECT_EQ(rowOf(help, 1), 3);
    EXPECT_EQ(rowOf(help, 2), 5);
}

TEST(PrintedHelp, HowToCloseTheWindowIsLeftOut) {
    const auto help =
        print({"(To close this window, press 'Esc'", "one", "(To close", " (To close"});
    EXPECT_EQ(textsOf(help), (Lines{"Title", "one", " (To close"}));
    EXPECT_EQ(rowOf(help, 2), 4);
}

TEST(PrintedHelp, ALineOfUnderscoresBeginsAPageAndIsNotPrinted) {
    const auto help = print({"one", "____", "", "two"});
    EXPECT_EQ(textsOf(help), (Lines{"Title", "one", "two"}));
    EXPECT_EQ(help.lines[1].page, 0U);
    EXPECT_EQ(help.lines[2].page, 1U);
    EXPECT_EQ(rowOf(help, 2), 1);
}

TEST(PrintedHelp, ALineThatWouldOverrunThePageStandsOnTopOfTheNext) {
    const float row = toolkit::textHeight({.Name = "Arial", .Size = largestHelpFont});
    const Lines lines{"one", "two", "three", "four", "five", "six"};
    const auto help = print(lines, {.width = 10000, .height = 5.1F * row});
    ASSERT_EQ(help.lines.size(), 7U);
    EXPECT_EQ(help.lines[2].text, "two");
    EXPECT_EQ(help.lines[2].page, 0U);
    EXPECT_EQ(rowOf(help, 2), 4);
    EXPECT_EQ(help.lines[3].page, 1U);
    EXPECT_EQ(rowOf(help, 3), 0);
    EXPECT_EQ(help.lines.back().page, 1U);
    for (const auto& line : help.lines) EXPECT_LE(line.top + row, 5.1F * row) << line.text;
}

TEST(PrintedHelp, EmptyLinesBeginNoPage) {
    const float row = toolkit::textHeight({.Name = "Arial", .Size = largestHelpFont});
    const auto help =
        print({"one", "", "", "", "two", "", ""}, {.width = 10000, .height = 5 * row});
    ASSERT_EQ(help.lines.size(), 3U);
    EXPECT_EQ(help.lines.back().page, 1U);
    EXPECT_EQ(rowOf(help, 2), 0);
}

TEST(PrintedHelp, APageThatIsFullIsTurnedOnce) {
    const float row = toolkit::textHeight({.Name = "Arial", .Size = largestHelpFont});
    const auto help =
        print({"one", "two", "____", "three"}, {.width = 10000, .height = 5.1F * row});
    EXPECT_EQ(help.lines.back().page, 1U);
}

TEST(PrintedHelp, ElevenPointsAreUsedWhereTheyFit) {
    const auto help = print({"one"});
    EXPECT_EQ(help.font.Name, "Arial");
    EXPECT_FLOAT_EQ(help.font.Size, 11);
}

TEST(PrintedHelp, TheWidestLineFitsAcrossThePageInTheLargestFontPossible) {
    const std::string wide(100, 'm');
    const auto help =
        print({"one", wide, "(To close" + std::string(200, 'm'), std::string(300, '_')},
              {.width = 9000, .height = 10000});
    EXPECT_LT(help.font.Size, 11);
    EXPECT_NEAR(toolkit::textWidth(help.font, wide), 9000, 1);
}

TEST(PrintedHelp, ATooWideTitleCountsToo) {
    const auto help = printedHelp(arial, {}, std::string(100, 'm'), {.width = 900, .height = 900});
    EXPECT_NEAR(toolkit::textWidth(help.font, help.lines.front().text), 900, 1);
}

} // namespace
} // namespace zev
