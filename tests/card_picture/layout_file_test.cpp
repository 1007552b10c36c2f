#include "card_picture/layout_reader.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace card_picture {
namespace {

std::string layoutBytes(int twips) {
    return fileBytes(CARD_OUTPUT "/Definitions.Ini." + std::to_string(twips));
}

/// The lines before the offsets, for 15 twips per pixel.
const std::vector<std::string> opening{
    "' ***********************************************************************",
    "' ***********************************************************************",
    "' **                                                                   **",
    "' **                 DO NOT MODIFY OR DELETE THIS FILE                 **",
    "' **                                                                   **",
    "' ***********************************************************************",
    "' ***********************************************************************",
    "",
    "' It defines the locations and default styles of the checkmark, circle, and text areas on the "
    "Convention card.",
    "' Individual card files (xxx.zev) only indicate which marks and what text should be shown; "
    "not where.  Those",
    "' files reference the field numbers in this file, so changing this file will affect the "
    "appearance of all cards.",
    "",
    "' The next few lines describe the environment in which this file was created",
    "' Program version: " CARD_VERSION,
    "",
    "' Screen TwipsPerPixel (usually 15, 13, or 12) and Screen Width in twips",
    "15,19200",
    "",
    "' Text font name; small, medium, and large text font sizes - all in points",
    R"("Arial","11.00","14.00","18.00")",
    "",
    "' Symbol font name (for checkmarks and circles); small, medium, and large Symbol font sizes - "
    "all in points",
    R"("Wingdings","18.00","22.00","30.00")",
    "' Symbol font name for Suit Symbols: Symbol",
    "",
    "' # of pixels by which characters are offset from the left and from the bottom within their "
    "positions",
    "' These values are used by the Auto-Adjust feature to fine-tune positions, especially in "
    "tight spaces",
    ""};

TEST(LayoutFile, OpensWithTheWordsThatTheProgramWrites) {
    const std::vector<std::string> lines = linesOf(layoutBytes(15));
    ASSERT_GT(lines.size(), opening.size());
    for (std::size_t at = 0; at < opening.size(); ++at) EXPECT_EQ(lines[at], opening[at]) << at;
}

TEST(LayoutFile, EveryLineEndsInCarriageReturnAndLineFeed) {
    for (const int twips : {12, 13, 15}) {
        const std::string bytes = layoutBytes(twips);
        ASSERT_FALSE(bytes.empty());
        for (std::size_t at = 0; at < bytes.size(); ++at) {
            if (bytes[at] == '\n') {
                ASSERT_EQ(bytes[at - 1], '\r') << at;
            }
        }
        EXPECT_TRUE(bytes.ends_with("\r\n"));
        EXPECT_EQ(std::ranges::count(bytes, '\r'), std::ranges::count(bytes, '\n'));
    }
}

TEST(LayoutFile, IsMadeForItsResolution) {
    for (const int twips : {12, 13, 15}) {
        EXPECT_EQ(layout(twips).twips, twips);
        EXPECT_EQ(layout(twips).screenWidth, 1280 * twips);
        EXPECT_EQ(layout(twips).textFont,
                  (std::vector<std::string>{"Arial", "11.00", "14.00", "18.00"}));
        EXPECT_EQ(layout(twips).markFont,
                  (std::vector<std::string>{"Wingdings", "18.00", "22.00", "30.00"}));
    }
}

TEST(LayoutFile, SaysThatThousandComesWithItsSignPosition) {
    const std::string words =
        "' If the number is larger than  1000, it refers to a Checkmark; otherwise, to Text.\r\n";
    EXPECT_NE(layoutBytes(15).find(words), std::string::npos);
}

TEST(LayoutFile, OffsetsGrowWithTheFontAndEndInZero) {
    for (const int twips : {12, 13, 15}) {
        const std::vector<int>& offsets = layout(twips).offsets;
        ASSERT_EQ(offsets.size(), 19U);
        EXPECT_EQ(offsets.back(), 0);
        for (std::size_t kind = 0; kind < 3; ++kind)
            for (std::size_t size = 0; size < 2; ++size) {
                const std::size_t at = 6 * kind + 2 * size;
                EXPECT_LE(offsets[at], offsets[at + 2]);
                EXPECT_LT(offsets[at + 1], offsets[at + 3]);
            }
    }
}

TEST(LayoutFile, OffsetsAreThoseOfTheCheckInItsCell) {
    // The check reaches from 0.2 em to the right of its cell's left edge down to 0.861 em from its
    // top.
    for (const int twips : {12, 13, 15}) {
        const double em = 18.0 * 20 / twips;
        EXPECT_NEAR(layout(twips).offsets[0], 0.2007 * em - 0.5, 1) << twips;
        EXPECT_NEAR(layout(twips).offsets[1], 0.8608 * em - 0.5, 1) << twips;
    }
}

TEST(LayoutFile, RecordsAreInSequence) {
    for (const int twips : {12, 13, 15}) {
        for (std::size_t at = 0; at < layout(twips).marks.size(); ++at)
            EXPECT_EQ(layout(twips).marks[at].number, static_cast<int>(at) + 1);
        for (std::size_t at = 0; at < layout(twips).texts.size(); ++at)
            EXPECT_EQ(layout(twips).texts[at].number, static_cast<int>(at) + 1);
    }
}

TEST(LayoutFile, TellsTheNumbersOfFields) {
    EXPECT_EQ(layout(15).marks.size(), fieldNumbers("mark").size());
    EXPECT_EQ(layout(15).texts.size(), fieldNumbers("text").size());
    const auto circles =
        std::ranges::count_if(layout(15).marks, [](const Field& mark) { return mark.isCircle(); });
    EXPECT_EQ(circles, 99);
    EXPECT_EQ(layout(15).marks.size(), 271U);
    EXPECT_EQ(layout(15).texts.size(), 97U);
}

} // namespace
} // namespace card_picture
