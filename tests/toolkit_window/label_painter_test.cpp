// A label, pixel by pixel.
#include <cmath>

#include "painting.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/text/draw_text.h"

namespace window_test {
namespace {

using namespace toolkit;

using LabelPainter = PaintTest;

TEST_F(LabelPainter, OpaqueLabelFillsExactlyItsPixels) {
    block(marks[1], 50, 60, 20, 10, red);
    const Bitmap shown = test::grabCard();
    EXPECT_EQ(shown.pixel(50, 60), red);
    EXPECT_EQ(shown.pixel(69, 69), red);
    EXPECT_EQ(shown.pixel(49, 60), white);
    EXPECT_EQ(shown.pixel(50, 59), white);
    EXPECT_EQ(shown.pixel(70, 69), white);
    EXPECT_EQ(shown.pixel(69, 70), white);
}

TEST_F(LabelPainter, EdgesBetweenPixelsAreRoundedToNearest) {
    block(marks[1], 50, 60, 20, 10, red);
    const float tenth = px(1) / 10;
    marks[1].Move(px(50) + 6 * tenth, px(60) + 4 * tenth, px(20), px(10));
    const Ink ink = inkOf(test::grabCard());
    EXPECT_EQ(ink.left, 51);
    EXPECT_EQ(ink.right, 70);
    EXPECT_EQ(ink.top, 60);
    EXPECT_EQ(ink.bottom, 69);
}

TEST_F(LabelPainter, NeighboursAtFractionsMeetWithoutAGap) {
    const float third = px(1) / 3;
    for (int index = 1; index <= 2; ++index) {
        block(marks[index], 0, 10, 10, 10, red);
        marks[index].Left = px(10) + static_cast<float>(index - 1) * (px(10) + third);
        marks[index].Width = px(10) + third;
    }
    const Bitmap shown = test::grabCard();
    for (int x = 10; x < 31; ++x) EXPECT_EQ(shown.pixel(x, 15), red) << x;
    EXPECT_EQ(shown.pixel(31, 15), white);
}

TEST_F(LabelPainter, TextIsPaintedAsDrawTextPaintsIt) {
    place(texts[1], 50, 60, 200, 30);
    write(texts[1], "Weak", Alignment::Left);
    Bitmap expected(400, 300);
    drawText(expected, 50, 60, texts[1].Font, black, "Weak");
    const Bitmap shown = test::grabCard();
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x) ASSERT_EQ(shown.pixel(x, y), expected.pixel(x, y));
    EXPECT_GT(inkOf(shown).right, 60);
}

/// How dark the pixels of a row are, together.
int darknessOf(const Bitmap& shown, int y) {
    int sum = 0;
    for (int x = 0; x < shown.width(); ++x) sum += 255 - redOf(shown.pixel(x, y).value_or(white));
    return sum;
}

TEST_F(LabelPainter, CaptionStandsAsMuchLowerAsTold) {
    place(texts[1], 50, 60, 200, 40);
    write(texts[1], "IIII", Alignment::Left);
    const int own = inkOf(test::grabCard()).bottom;
    texts[1].Lowered = px(10);
    EXPECT_EQ(inkOf(test::grabCard()).bottom, own + 10);
}

TEST_F(LabelPainter, CaptionStandsOnTheNearestRow) {
    place(texts[1], 50, 60, 200, 40);
    write(texts[1], "IIII", Alignment::Left);
    const float line = 60 + textAscent(texts[1].Font) / px(1);
    const int row = static_cast<int>(line) + 1;
    for (const float beyond : {-0.4F, 0.0F, 0.4F}) {
        texts[1].Lowered = (static_cast<float>(row) + beyond - line) * px(1);
        const Bitmap shown = test::grabCard();
        EXPECT_EQ(darknessOf(shown, row), 0) << beyond;
        EXPECT_EQ(darknessOf(shown, row - 1), darknessOf(shown, row - 3)) << beyond;
    }
}

TEST_F(LabelPainter, SharpScreenPutsTheBaseLineOnItsOwnRows) {
    place(texts[1], 50, 60, 200, 40);
    write(texts[1], "IIII", Alignment::Left);
    const float line = 60 + textAscent(texts[1].Font) / px(1);
    const float below = (std::ceil(line) + 0.5F - line) * px(1);
    texts[1].Lowered = below;
    EXPECT_EQ(inkOf(test::grabCardAt(2)).bottom, 2 * static_cast<int>(std::ceil(line)));
}

TEST_F(LabelPainter, CentredAndRightTextStandWhereTheirWidthsPutThem) {
    place(texts[1], 50, 60, 200, 30);
    write(texts[1], "HHHH", Alignment::Left);
    const Ink left = inkOf(test::grabCard());
    const float width = textWidth(texts[1].Font, "HHHH") / px(1);
    texts[1].Alignment = Alignment::Right;
    const Ink right = inkOf(test::grabCard());
    EXPECT_NEAR(right.left - left.left, 200 - width, 1);
    texts[1].Alignment = Alignment::Center;
    const Ink centre = inkOf(test::grabCard());
    EXPECT_NEAR(centre.left - left.left, (200 - width) / 2, 1);
    EXPECT_EQ(centre.top, left.top);
}

TEST_F(LabelPainter, TrailingBlanksPushCentredTextToTheLeft) {
    place(texts[1], 50, 60, 200, 30);
    write(texts[1], "HHHH", Alignment::Center);
    const Ink bare = inkOf(test::grabCard());
    texts[1].Caption = "HHHH    ";
    const Ink blanks = inkOf(test::grabCard());
    const float shift = textWidth(texts[1].Font, "    ") / px(1) / 2;
    EXPECT_NEAR(bare.left - blanks.left, shift, 1);
}

TEST_F(LabelPainter, DoubledAmpersandPaintsOne) {
    place(texts[1], 50, 60, 200, 30);
    write(texts[1], "H&&H", Alignment::Left);
    const Ink doubled = inkOf(test::grabCard());
    const float width = textWidth(texts[1].Font, "H&H") / px(1);
    EXPECT_NEAR(doubled.right - 50, width, 2);
}

TEST_F(LabelPainter, TextTooWideIsCutOffAtTheLabelUnlessItMayOverflow) {
    place(texts[1], 100, 60, 30, 30);
    write(texts[1], "HHHHHHHH", Alignment::Center);
    const Ink cut = inkOf(test::grabCard());
    EXPECT_GE(cut.left, 100);
    EXPECT_LT(cut.right, 130);
    texts[1].Clips = false;
    const Ink overflowing = inkOf(test::grabCard());
    EXPECT_LT(overflowing.left, 95);
    EXPECT_GT(overflowing.right, 135);
}

TEST_F(LabelPainter, ATextThatWrapsEndsWithTheLastWordThatFits) {
    place(texts[1], 100, 60, 60, 30);
    write(texts[1], "HHH H", Alignment::Center);
    const float width = textWidth(texts[1].Font, "HHH H") / px(1);
    ASSERT_LT(width, 60);
    const Ink line = inkOf(test::grabCard());
    texts[1].Caption = "HHH H HHH HHHHHHHHHHH";
    texts[1].FirstLineOnly = true;
    const Ink wrapped = inkOf(test::grabCard());
    EXPECT_EQ(wrapped.left, line.left);
    EXPECT_EQ(wrapped.right, line.right);
    EXPECT_EQ(wrapped.bottom, line.bottom);
    texts[1].Caption = "HHH H";
    EXPECT_EQ(inkOf(test::grabCard()).right, line.right);
}

TEST_F(LabelPainter, AFirstWordThatIsTooWideIsCutOffAtTheLabel) {
    place(texts[1], 100, 60, 30, 30);
    write(texts[1], "HHHHHHHH H", Alignment::Left);
    texts[1].FirstLineOnly = true;
    const Ink cut = inkOf(test::grabCard());
    EXPECT_GE(cut.left, 100);
    EXPECT_GT(cut.right, 120);
    EXPECT_LT(cut.right, 130);
}

} // namespace
} // namespace window_test
