// Which labels the card paints, in which order, and when again.
#include "painting.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

using LabelScene = PaintTest;

TEST_F(LabelScene, NothingIsPaintedAnewWhenNothingChanged) {
    place(texts[1], 50, 60, 200, 30);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    texts[1].Tag = "not painted";
    marks[1].Caption = "hidden";
    test::moveMouse(px(5), px(5));
    test::settle();
    EXPECT_EQ(test::cardPaints().paints, before.paints);
}

TEST_F(LabelScene, OnlyTheChangedLabelIsPaintedAnew) {
    block(marks[1], 50, 60, 20, 10, red);
    block(marks[2], 150, 60, 20, 10, red);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    marks[1].BackColor = blue;
    test::settle();
    EXPECT_EQ(test::cardPaints().paints, before.paints + 1);
    EXPECT_EQ(test::cardPaints().pixels - before.pixels, 20 * 10);
}

TEST_F(LabelScene, MovedLabelPaintsItsOldAndItsNewPlace) {
    block(marks[1], 50, 60, 20, 10, red);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    marks[1].Left = px(200);
    test::settle();
    EXPECT_EQ(test::cardPaints().pixels - before.pixels, 2 * 20 * 10);
}

TEST_F(LabelScene, UnloadedLabelIsPaintedOver) {
    block(marks[3], 50, 60, 20, 10, red);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    marks.UnloadAbove(2);
    test::settle();
    EXPECT_EQ(test::cardPaints().pixels - before.pixels, 20 * 10);
    EXPECT_EQ(test::grabCard().pixel(55, 65), white);
}

TEST_F(LabelScene, OverflowingTextIsPaintedAnewWhereItOverflowed) {
    place(texts[1], 100, 60, 30, 30);
    write(texts[1], "HHHHHHHH", Alignment::Center);
    texts[1].Clips = false;
    test::settle();
    const test::CardPaints before = test::cardPaints();
    texts[1].Caption = "";
    test::settle();
    const float width = textWidth(texts[1].Font, "HHHHHHHH") / px(1);
    EXPECT_GE(test::cardPaints().pixels - before.pixels, static_cast<int>(width * 14));
}

TEST_F(LabelScene, LabelLoadedLaterIsPainted) {
    Label& added = marks.Load(4);
    block(added, 50, 60, 20, 10, red);
    EXPECT_EQ(test::grabCard().pixel(55, 65), red);
    // Growing the array once more must not disturb what is painted.
    for (int index = 5; index < 200; ++index) marks.Load(index);
    EXPECT_EQ(test::grabCard().pixel(55, 65), red);
}

TEST_F(LabelScene, HigherInTheStackCoversLower) {
    block(marks[1], 50, 60, 20, 20, red, 5);
    block(texts[1], 60, 60, 20, 20, blue, 4);
    EXPECT_EQ(test::grabCard().pixel(65, 65), red);
    texts[1].Stack = 6;
    EXPECT_EQ(test::grabCard().pixel(65, 65), blue);
    texts[1].Visible = false;
    EXPECT_EQ(test::grabCard().pixel(65, 65), red);
}

TEST_F(LabelScene, EqualsAreStackedByGroupThenIndexThenSingleLabels) {
    block(marks[2], 50, 60, 20, 20, red);
    block(marks[1], 50, 60, 20, 20, grey);
    EXPECT_EQ(test::grabCard().pixel(55, 65), red);
    block(texts[1], 50, 60, 20, 20, blue);
    EXPECT_EQ(test::grabCard().pixel(55, 65), blue);
    block(stamp, 50, 60, 20, 20, grey);
    EXPECT_EQ(test::grabCard().pixel(55, 65), grey);
}

} // namespace
} // namespace window_test
