#include "marks/hit_test.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

constexpr int twipsPerPixel = 15;
constexpr float tolerance = 75;

toolkit::Label markAtPlace(float left, float top, float width, float height) {
    toolkit::Label mark;
    mark.Move(left, top, width, height);
    return mark;
}

/// A mark from (1000, 2000) to (1300, 2300).
bool hits(float x, float y, int twips = twipsPerPixel) {
    return hitsMark(markAtPlace(1000, 2000, 300, 300), x, y, twips);
}

TEST(Marks, ClickInTheMiddleHits) { EXPECT_TRUE(hits(1150, 2150)); }

TEST(Marks, ClickOnTheLeftEdgeMisses) {
    EXPECT_FALSE(hits(1000, 2150));
    EXPECT_TRUE(hits(1001, 2150));
}

TEST(Marks, ClickWithinFivePixelsOfTheRightEdgeMisses) {
    EXPECT_FALSE(hits(1300 - tolerance, 2150));
    EXPECT_TRUE(hits(1299 - tolerance, 2150));
}

TEST(Marks, ClickWithinFivePixelsOfTheTopMisses) {
    EXPECT_FALSE(hits(1150, 2000 + tolerance));
    EXPECT_TRUE(hits(1150, 2001 + tolerance));
}

TEST(Marks, ClickWithinFivePixelsOfTheBottomMisses) {
    EXPECT_FALSE(hits(1150, 2300 - tolerance));
    EXPECT_TRUE(hits(1150, 2299 - tolerance));
}

TEST(Marks, ToleranceGoesByTheScreensPixels) {
    EXPECT_FALSE(hits(1230, 2150, 15));
    EXPECT_TRUE(hits(1230, 2150, 12));
}

TEST(Marks, MarkOfLessThanTenPixelsHeightIsNeverHit) {
    const toolkit::Label flat = markAtPlace(0, 0, 300, 149);
    for (int half = 0; half < 300; ++half) {
        ASSERT_FALSE(hitsMark(flat, 100, static_cast<float>(half) / 2, twipsPerPixel));
    }
}

toolkit::ControlArray<toolkit::Label> overlappingMarks() {
    toolkit::ControlArray<toolkit::Label> marks;
    marks[0].Move(0, 0, 9000, 9000);
    for (int i = 1; i <= 3; ++i) marks.Load(i).Move(static_cast<float>(i) * 100, 1000, 300, 300);
    return marks;
}

TEST(Marks, LowestOfOverlappingMarksIsHit) {
    EXPECT_EQ(markAt(overlappingMarks(), 310, 1150, twipsPerPixel), 1);
    EXPECT_EQ(markAt(overlappingMarks(), 410, 1150, twipsPerPixel), 2);
    EXPECT_EQ(markAt(overlappingMarks(), 510, 1150, twipsPerPixel), 3);
}

TEST(Marks, ShownMarksAreNotSkipped) {
    auto marks = overlappingMarks();
    marks[1].Visible = true;
    EXPECT_EQ(markAt(marks, 310, 1150, twipsPerPixel), 1);
}

TEST(Marks, TemplateIsNeverHit) {
    EXPECT_EQ(markAt(overlappingMarks(), 5000, 5000, twipsPerPixel), std::nullopt);
}

} // namespace
} // namespace zev
