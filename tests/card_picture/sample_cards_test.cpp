#include "card_picture/layout_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace card_picture {
namespace {

const std::vector<std::string> sampleNames{"Standard American", "Two Over One"};

std::string cardBytes(const std::string& name) {
    return fileBytes(CARD_OUTPUT "/" + name + ".zev");
}

struct Card {
    std::vector<std::string> persons{};
    std::vector<std::vector<std::string>> marks{};
    std::vector<std::vector<std::string>> texts{};
};

Card readCard(const std::string& name) {
    Card card;
    std::vector<std::string> data;
    for (const std::string& line : linesOf(cardBytes(name)))
        if (!line.empty() && line.front() != '\'') data.push_back(line);
    card.persons = valuesOf(data.at(0));
    const auto marks = static_cast<std::size_t>(std::stoi(data.at(1)));
    for (std::size_t at = 0; at < marks; ++at) card.marks.push_back(valuesOf(data.at(2 + at)));
    const auto texts = static_cast<std::size_t>(std::stoi(data.at(2 + marks)));
    for (std::size_t at = 0; at < texts; ++at)
        card.texts.push_back(valuesOf(data.at(3 + marks + at)));
    return card;
}

const std::string& textOf(const Card& card, const std::string& field) {
    return card.texts.at(static_cast<std::size_t>(fieldNumbers("text").at(field) - 1)).at(1);
}

bool isSet(const Card& card, const std::string& field) {
    return card.marks.at(static_cast<std::size_t>(fieldNumbers("mark").at(field) - 1)).at(1) == "1";
}

TEST(SampleCards, OpenWithTheWordsThatTheProgramWrites) {
    for (const std::string& name : sampleNames) {
        const std::vector<std::string> lines = linesOf(cardBytes(name));
        ASSERT_GT(lines.size(), 16U) << name;
        EXPECT_EQ(lines[0],
                  "' ************************************************************************");
        EXPECT_EQ(lines[1],
                  "' **           DO NOT MODIFY THIS FILE (it's OK to delete it)           **");
        EXPECT_EQ(lines[2], lines[0]);
        EXPECT_EQ(lines[3], "");
        EXPECT_EQ(lines[4], "' This contains the settings for the card called: " + name);
        EXPECT_EQ(lines[5], "' You may delete it from your computer if you no longer need it");
        EXPECT_EQ(lines[6], "' Program version: " CARD_VERSION);
        EXPECT_EQ(lines[8], "' Partner's name and ACBL ID number (both are optional)");
        EXPECT_EQ(lines[9], R"("","")");
        EXPECT_EQ(lines[11], "' # of mark-fields to follow");
        EXPECT_EQ(
            lines[14],
            "' For each, 3 values: its field-number; whether or not it was selected (1=yes, 0=no); "
            "bit-switches (unused)");
        EXPECT_EQ(
            lines[15],
            "'           The field numbers correspond to the ones in the 'Definitions.Ini' file");
    }
}

TEST(SampleCards, HaveALineForEachField) {
    for (const std::string& name : sampleNames) {
        const Card card = readCard(name);
        ASSERT_EQ(card.marks.size(), layout(15).marks.size());
        ASSERT_EQ(card.texts.size(), layout(15).texts.size());
        for (std::size_t at = 0; at < card.marks.size(); ++at) {
            ASSERT_EQ(card.marks[at].size(), 3U);
            EXPECT_EQ(card.marks[at][0], std::to_string(at + 1));
            EXPECT_EQ(card.marks[at][2], "0");
        }
        for (std::size_t at = 0; at < card.texts.size(); ++at) {
            ASSERT_EQ(card.texts[at].size(), 3U) << name << " text " << at + 1;
            EXPECT_EQ(card.texts[at][0], std::to_string(at + 1));
        }
    }
}

TEST(SampleCards, SayWhatTheirSystemSays) {
    const Card american = readCard("Standard American");
    EXPECT_EQ(textOf(american, "1nt.low"), "15");
    EXPECT_EQ(textOf(american, "1nt.high"), "17");
    EXPECT_TRUE(isSet(american, "major.first.5"));
    EXPECT_FALSE(isSet(american, "two_over_one.forcing"));
    const Card twoOverOne = readCard("Two Over One");
    EXPECT_TRUE(isSet(twoOverOne, "two_over_one.forcing"));
    EXPECT_TRUE(isSet(twoOverOne, "n.akjx.2"));
    EXPECT_FALSE(isSet(twoOverOne, "n.akjx.1"));
}

TEST(SampleCards, AreFilledIn) {
    for (const std::string& name : sampleNames) {
        const Card card = readCard(name);
        const auto filled =
            std::ranges::count_if(card.texts, [](const auto& text) { return !text[1].empty(); });
        const auto set =
            std::ranges::count_if(card.marks, [](const auto& mark) { return mark[1] == "1"; });
        EXPECT_GT(filled, 75) << name;
        EXPECT_GT(set, 45) << name;
    }
}

TEST(SampleCards, SuitEscapesNameSuits) {
    for (const std::string& name : sampleNames) {
        int escapes = 0;
        for (const auto& text : readCard(name).texts)
            for (std::size_t at = text[1].find('^'); at != std::string::npos;
                 at = text[1].find('^', at + 1)) {
                ASSERT_LT(at + 1, text[1].size()) << text[1];
                EXPECT_NE(std::string("cdhs").find(text[1][at + 1]), std::string::npos) << text[1];
                EXPECT_FALSE(at + 2 < text[1].size() && text[1][at + 2] == '^') << text[1];
                ++escapes;
            }
        EXPECT_GT(escapes, 10) << name;
    }
}

TEST(SampleCards, NamesLineIsBoldAndNothingElse) {
    for (const std::string& name : sampleNames) {
        const Card card = readCard(name);
        for (std::size_t at = 0; at < card.texts.size(); ++at)
            EXPECT_EQ(card.texts[at][2], layout(15).texts[at].size == 3 ? "1" : "0") << at + 1;
    }
}

TEST(SampleCards, EveryLineEndsInCarriageReturnAndLineFeed) {
    for (const std::string& name : sampleNames) {
        const std::string bytes = cardBytes(name);
        EXPECT_TRUE(bytes.ends_with("\r\n"));
        EXPECT_EQ(std::ranges::count(bytes, '\r'), std::ranges::count(bytes, '\n'));
    }
}

} // namespace
} // namespace card_picture
