#include "card_picture/picture_reader.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace card_picture {
namespace {

/// A click sets a mark within its label less this much at the right, the top and the bottom, in
/// screen pixels at any scale.
constexpr double clickMargin = 5;
/// A text's suit signs stand this much above it, in screen pixels.
constexpr double suitReach = 6;

struct Area {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    [[nodiscard]] bool overlaps(const Area& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

/// Scale 1 is the design size, 2 the full one.
Area labelOf(const Field& mark, int twips, double scale) {
    const Glyph glyph = markGlyph(mark, twips);
    return {mark.left * scale, mark.top * scale, (mark.left + glyph.advance) * scale,
            (mark.top + glyph.height) * scale};
}

Area targetOf(const Field& mark, int twips, double scale) {
    const Area label = labelOf(mark, twips, scale);
    return {label.left, label.top + clickMargin, label.right - clickMargin,
            label.bottom - clickMargin};
}

Area textWithSuits(const Field& text, int twips) {
    const double top = text.top - suitReach;
    return {double(text.left), top, double(text.left + text.width),
            text.top + textLine(text, twips).height};
}

void expectTargetsApart(int twips, double scale) {
    const std::vector<Field>& marks = layout(twips).marks;
    std::vector<Area> targets;
    targets.reserve(marks.size());
    for (const Field& mark : marks) targets.push_back(targetOf(mark, twips, scale));
    for (std::size_t one = 0; one < targets.size(); ++one)
        for (std::size_t other = one + 1; other < targets.size(); ++other)
            EXPECT_FALSE(targets[one].overlaps(targets[other]))
                << marks[one].number << " and " << marks[other].number << " for " << twips << " at "
                << scale;
}

TEST(Targets, NeighboursDontOverlapAtDesignSize) {
    for (const int twips : {12, 13, 15}) expectTargetsApart(twips, 1);
}

TEST(Targets, NeighboursDontOverlapAtFullScale) { expectTargetsApart(15, 2); }

TEST(Targets, NoMarkLiesUnderATextOrItsSuits) {
    for (const Field& text : layout(15).texts)
        for (const Field& mark : layout(15).marks)
            EXPECT_FALSE(labelOf(mark, 15, 1).overlaps(textWithSuits(text, 15)))
                << "mark " << mark.number << " and text " << text.number;
}

/// What of a mark's box or letter takes a click.
Area clickedPrint(const Field& mark, int twips) {
    const Glyph glyph = markGlyph(mark, twips);
    const Area target = targetOf(mark, twips, 1);
    const double half = mark.isCheck() ? 7.5 : glyph.radius;
    const double x = mark.left + glyph.centreX;
    const double y = mark.top + glyph.centreY;
    return {std::max(target.left, x - half), std::max(target.top, y - half),
            std::min(target.right, x + half), std::min(target.bottom, y + half)};
}

TEST(Targets, NoTextTakesTheClicksOfABox) {
    for (const int twips : {12, 13})
        for (const Field& text : layout(twips).texts)
            for (const Field& mark : layout(twips).marks)
                EXPECT_FALSE(clickedPrint(mark, twips).overlaps(textWithSuits(text, twips)))
                    << "mark " << mark.number << " and text " << text.number << " for " << twips;
}

TEST(Targets, CellsAreLargeEnoughAtAThird) {
    constexpr double third = 2.0 / 3;
    for (const Field& mark : layout(15).marks) {
        const Glyph glyph = markGlyph(mark, 15);
        EXPECT_GE(glyph.advance * third, 12) << mark.number;
        EXPECT_GE(glyph.height * third, 16) << mark.number;
    }
}

TEST(Targets, TextsDontOverlapEachOther) {
    const std::vector<Field>& texts = layout(15).texts;
    const auto area = [](const Field& text) {
        return Area{double(text.left), double(text.top), double(text.left + text.width),
                    text.top + textLine(text, 15).height};
    };
    for (std::size_t one = 0; one < texts.size(); ++one)
        for (std::size_t other = one + 1; other < texts.size(); ++other)
            EXPECT_FALSE(area(texts[one]).overlaps(area(texts[other])))
                << texts[one].number << "," << texts[other].number;
}

TEST(Targets, LayoutsTellTheSizesOfTheirFonts) {
    for (const int twips : {12, 13, 15}) {
        for (const Field& mark : layout(twips).marks) {
            EXPECT_NEAR(mark.width, markGlyph(mark, twips).advance, 0.5)
                << mark.number << " for " << twips;
            EXPECT_NEAR(mark.height, markGlyph(mark, twips).height, 0.5)
                << mark.number << " for " << twips;
        }
        for (const Field& text : layout(twips).texts)
            EXPECT_NEAR(text.height, textLine(text, twips).height, 0.5)
                << text.number << " for " << twips;
    }
}

} // namespace
} // namespace card_picture
