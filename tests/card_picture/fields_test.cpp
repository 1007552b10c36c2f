#include "card_picture/picture_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace card_picture {
namespace {

constexpr int boxHalf = 15;

/// The middle of a filled square in a mark's label, in full pixels.
struct Middle {
    double x = 0;
    double y = 0;
};

Middle middleOf(const Field& mark, int twips) {
    const Glyph glyph = markGlyph(mark, twips);
    return {2 * (mark.left + glyph.centreX), 2 * (mark.top + glyph.centreY)};
}

/// The inner edge of the box in one direction: the steps from a place to the first ink.
std::optional<int> stepsToInk(const Picture& picture, int x, int y, int right, int down) {
    for (int steps = 0; steps < 2 * boxHalf; ++steps)
        if (picture.ink(x + steps * right, y + steps * down)) return steps;
    return std::nullopt;
}

/// The middle of the printed box around a place, if there is one of the right size.
std::optional<Middle> boxAround(const Picture& picture, Middle place) {
    const int x = static_cast<int>(std::floor(place.x));
    const int y = static_cast<int>(std::floor(place.y));
    const auto left = stepsToInk(picture, x, y, -1, 0);
    const auto right = stepsToInk(picture, x, y, 1, 0);
    const auto up = stepsToInk(picture, x, y, 0, -1);
    const auto down = stepsToInk(picture, x, y, 0, 1);
    if (!left || !right || !up || !down) return std::nullopt;
    if (*left + *right != 2 * boxHalf - 3 || *up + *down != 2 * boxHalf - 3) return std::nullopt;
    return Middle{x + (*right - *left + 1) / 2.0, y + (*down - *up + 1) / 2.0};
}

TEST(Fields, EachSquareStandsInTheMiddleOfItsPrintedBox) {
    for (const int twips : {12, 13, 15})
        for (const Field& mark : layout(twips).marks) {
            if (!mark.isCheck()) continue;
            const Middle ink = middleOf(mark, twips);
            const auto box = boxAround(fullPicture(), ink);
            ASSERT_TRUE(box) << "no box at mark " << mark.number << " for " << twips;
            const double most = twips == 15 ? 0.5 : 1.3;
            EXPECT_NEAR(box->x, ink.x, most) << mark.number << " for " << twips;
            EXPECT_NEAR(box->y, ink.y, most) << mark.number << " for " << twips;
        }
}

TEST(Fields, EachCheckBeginsAtTheLowerLeftOfItsBoxAndRisesOutOfIt) {
    for (const int twips : {12, 13, 15})
        for (const Field& mark : layout(twips).marks) {
            if (!mark.isCheck()) continue;
            const auto box = boxAround(fullPicture(), middleOf(mark, twips));
            ASSERT_TRUE(box) << mark.number;
            const CheckInk ink = checkInk(mark, twips);
            const double left = 2 * (mark.left + ink.left) - (box->x - boxHalf);
            EXPECT_GE(left, 0) << mark.number << " for " << twips;
            EXPECT_LT(left, 4) << mark.number << " for " << twips;
            const double foot = box->y + boxHalf - 2 * (mark.top + ink.bottom);
            EXPECT_GE(foot, 2) << mark.number << " for " << twips;
            EXPECT_LT(foot, 5) << mark.number << " for " << twips;
            EXPECT_GT(2 * (mark.left + ink.right), box->x + boxHalf + 4) << mark.number;
            EXPECT_LT(2 * (mark.top + ink.top), box->y - boxHalf - 4) << mark.number;
        }
}

TEST(Fields, EachBoxIsPrintedInItsFieldsColour) {
    for (const Field& mark : layout(15).marks) {
        if (!mark.isCheck()) continue;
        const Middle ink = middleOf(mark, 15);
        const int x = static_cast<int>(std::lround(ink.x));
        const int y = static_cast<int>(std::lround(ink.y));
        EXPECT_EQ(fullPicture().at(x - boxHalf, y), printedColour(mark.colour)) << mark.number;
        EXPECT_EQ(fullPicture().at(x, y + boxHalf - 1), printedColour(mark.colour)) << mark.number;
        EXPECT_FALSE(fullPicture().ink(x - boxHalf - 1, y)) << mark.number;
    }
}

/// The first row of the rule under a text's baseline, and whether it is as long as the text.
std::optional<int> ruleUnder(const Field& text, double baseline) {
    const Picture& picture = fullPicture();
    const Colour colour = printedColour(text.colour);
    const auto wholeRow = [&](int y) {
        for (int x = 2 * text.left; x < 2 * (text.left + text.width); ++x)
            if (picture.at(x, y) != colour) return false;
        return true;
    };
    for (int y = static_cast<int>(baseline) - 4; y < static_cast<int>(baseline) + 24; ++y)
        if (wholeRow(y)) return y;
    return std::nullopt;
}

TEST(Fields, EachTextStandsClearOfItsPrintedRule) {
    for (const int twips : {12, 13, 15})
        for (const Field& text : layout(twips).texts) {
            const LineHeight line = textLine(text, twips);
            const double baseline = 2 * (text.top + line.ascent);
            const auto rule = ruleUnder(text, baseline);
            ASSERT_TRUE(rule) << "no rule at text " << text.number << " for " << twips;
            EXPECT_LT(baseline + 2 * line.reach, *rule - 2) << text.number << " for " << twips;
            if (text.size == 1) {
                EXPECT_NEAR(baseline, *rule - 12, 1) << text.number << " for " << twips;
            }
        }
}

TEST(Fields, RulesEndWhereTheTextsEnd) {
    for (const Field& text : layout(15).texts) {
        const auto rule = ruleUnder(text, 2 * (text.top + textLine(text, 15).ascent));
        ASSERT_TRUE(rule) << text.number;
        // The names stand on their frame.
        if (text.size == 3) continue;
        EXPECT_FALSE(fullPicture().ink(2 * text.left - 2, *rule)) << text.number;
        EXPECT_FALSE(fullPicture().ink(2 * (text.left + text.width) + 1, *rule)) << text.number;
    }
}

TEST(Fields, NoPrintStandsWhereATextIsWritten) {
    for (const Field& text : layout(15).texts) {
        const int top = 2 * text.top + 6;
        const int bottom = static_cast<int>(2 * (text.top + textLine(text, 15).ascent));
        for (int y = top; y < bottom; ++y)
            for (int x = 2 * text.left; x < 2 * (text.left + text.width); ++x)
                ASSERT_FALSE(fullPicture().ink(x, y)) << text.number << " at " << x << "," << y;
    }
}

TEST(Fields, SizesAreThoseTheProgramKnows) {
    for (const int twips : {12, 13, 15}) {
        int large = 0;
        for (const Field& text : layout(twips).texts) {
            EXPECT_TRUE(text.size == 1 || text.size == 3) << text.number;
            large += text.size == 3 ? 1 : 0;
        }
        EXPECT_EQ(large, 1) << twips;
        for (const Field& mark : layout(twips).marks)
            EXPECT_TRUE(mark.size == 1 || mark.size == 2) << mark.number;
    }
}

TEST(Fields, EverythingLiesOnTheSheet) {
    for (const int twips : {12, 13, 15}) {
        std::vector<Field> all = layout(twips).marks;
        all.insert(all.end(), layout(twips).texts.begin(), layout(twips).texts.end());
        for (const Field& field : all) {
            EXPECT_GE(field.left, 0);
            EXPECT_GE(field.top, 0);
            EXPECT_LE(field.left + field.width, 1198);
            EXPECT_LE(field.top + field.height, 1236);
            EXPECT_GT(field.width, 0);
        }
    }
}

TEST(Fields, TheThreeLayoutsHaveTheSameFields) {
    for (const int twips : {12, 13}) {
        ASSERT_EQ(layout(twips).marks.size(), layout(15).marks.size());
        ASSERT_EQ(layout(twips).texts.size(), layout(15).texts.size());
        for (std::size_t at = 0; at < layout(15).marks.size(); ++at) {
            EXPECT_EQ(layout(twips).marks[at].symbol, layout(15).marks[at].symbol);
            EXPECT_EQ(layout(twips).marks[at].colour, layout(15).marks[at].colour);
        }
    }
}

} // namespace
} // namespace card_picture
