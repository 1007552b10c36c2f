#include "help/help_sections.h"

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::vector<std::string> linesOf(std::string_view section) {
    std::vector<std::string> lines;
    while (!section.empty()) {
        const auto end = section.find('\n');
        if (end == std::string_view::npos) {
            ADD_FAILURE() << "the last line lacks its line feed";
            return lines;
        }
        lines.emplace_back(section.substr(0, end));
        section.remove_prefix(end + 1);
    }
    return lines;
}

std::vector<std::string> allLines() {
    const auto sections = zev::helpSections();
    std::vector<std::string> lines;
    for (const auto section : {sections.usingCards, sections.changingLayout, sections.reporting}) {
        for (auto& line : linesOf(section)) lines.push_back(std::move(line));
    }
    return lines;
}

TEST(HelpSections, HoldOnlyPrintableAscii) {
    for (const auto& line : allLines()) {
        for (const char character : line) {
            EXPECT_GE(character, ' ') << line;
            EXPECT_LE(character, '~') << line;
        }
    }
}

TEST(HelpSections, LinesFitAcrossAScreen) {
    for (const auto& line : allLines()) EXPECT_LE(line.size(), 132U) << line;
}

TEST(HelpSections, EveryTitleStandsBehindAnEmptyLine) {
    const auto lines = allLines();
    int titles = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty() || lines[i].front() == ' ') continue;
        ++titles;
        ASSERT_GT(i, 0U);
        EXPECT_EQ(lines[i - 1], "") << lines[i];
    }
    EXPECT_EQ(titles, 12);
}

TEST(HelpSections, EntriesAreIndentedInTheSameWay) {
    for (const auto& line : allLines()) {
        const auto star = line.find_first_not_of(' ');
        if (star == std::string::npos || line[star] != '*') continue;
        EXPECT_TRUE(star == 2 || star == 6 || star == 7) << line;
    }
}

TEST(HelpSections, NameEachPlaceholderOnce) {
    const std::string reporting(zev::helpSections().reporting);
    for (const std::string placeholder : {"{folder}", "{support}"}) {
        EXPECT_NE(reporting.find(placeholder), std::string::npos);
        EXPECT_EQ(reporting.find(placeholder), reporting.rfind(placeholder));
    }
}

} // namespace
