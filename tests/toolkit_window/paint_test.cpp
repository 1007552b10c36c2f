// What the card paints, pixel by pixel, and how much of it anew.
#include "fixture.h"

#include <cmath>

namespace window_test {
namespace {

using namespace toolkit;

constexpr Color red = rgb(255, 0, 0);
constexpr Color blue = rgb(0, 0, 255);
constexpr Color grey = rgb(200, 200, 200);

class Paint : public WindowTest {
  protected:
    static void block(Label& label, int left, int top, int width, int height, Color color,
                      int stack = 0) {
        place(label, left, top, width, height, stack);
        label.BackStyle = BackStyle::Opaque;
        label.BackColor = color;
    }

    /// The pixels that differ from white.
    struct Ink {
        int left = 1000000;
        int top = 1000000;
        int right = -1;
        int bottom = -1;
    };
    static Ink inkOf(const Bitmap& shown) {
        Ink ink;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixel(x, y) != white)
                    ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x),
                           std::max(ink.bottom, y)};
        return ink;
    }

    void write(Label& label, const std::string& caption, Alignment alignment) {
        label.Caption = caption;
        label.Alignment = alignment;
        label.Font = {.Name = "Arial", .Size = 12};
    }
};

TEST_F(Paint, OpaqueLabelFillsExactlyItsPixels) {
    block(marks[1], 50, 60, 20, 10, red);
    const Bitmap shown = test::grabCard();
    EXPECT_EQ(shown.pixel(50, 60), red);
    EXPECT_EQ(shown.pixel(69, 69), red);
    EXPECT_EQ(shown.pixel(49, 60), white);
    EXPECT_EQ(shown.pixel(50, 59), white);
    EXPECT_EQ(shown.pixel(70, 69), white);
    EXPECT_EQ(shown.pixel(69, 70), white);
}

TEST_F(Paint, EdgesBetweenPixelsAreRoundedToNearest) {
    block(marks[1], 50, 60, 20, 10, red);
    const float tenth = px(1) / 10;
    marks[1].Move(px(50) + 6 * tenth, px(60) + 4 * tenth, px(20), px(10));
    const Ink ink = inkOf(test::grabCard());
    EXPECT_EQ(ink.left, 51);
    EXPECT_EQ(ink.right, 70);
    EXPECT_EQ(ink.top, 60);
    EXPECT_EQ(ink.bottom, 69);
}

TEST_F(Paint, NeighboursAtFractionsMeetWithoutAGap) {
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

TEST_F(Paint, HigherInTheStackCoversLower) {
    block(marks[1], 50, 60, 20, 20, red, 5);
    block(texts[1], 60, 60, 20, 20, blue, 4);
    EXPECT_EQ(test::grabCard().pixel(65, 65), red);
    texts[1].Stack = 6;
    EXPECT_EQ(test::grabCard().pixel(65, 65), blue);
    texts[1].Visible = false;
    EXPECT_EQ(test::grabCard().pixel(65, 65), red);
}

TEST_F(Paint, EqualsAreStackedByGroupThenIndexThenSingleLabels) {
    block(marks[2], 50, 60, 20, 20, red);
    block(marks[1], 50, 60, 20, 20, grey);
    EXPECT_EQ(test::grabCard().pixel(55, 65), red);
    block(texts[1], 50, 60, 20, 20, blue);
    EXPECT_EQ(test::grabCard().pixel(55, 65), blue);
    block(stamp, 50, 60, 20, 20, grey);
    EXPECT_EQ(test::grabCard().pixel(55, 65), grey);
}

TEST_F(Paint, PictureIsShownPixelByPixelAndTheRestIsWhite) {
    auto picture = std::make_shared<Bitmap>(100, 50, grey);
    picture->setPixel(99, 49, red);
    card.Picture = picture;
    const Bitmap shown = test::grabCard();
    ASSERT_EQ(shown.width(), 400);
    ASSERT_EQ(shown.height(), 300);
    EXPECT_EQ(shown.pixel(0, 0), grey);
    EXPECT_EQ(shown.pixel(98, 49), grey);
    EXPECT_EQ(shown.pixel(99, 49), red);
    EXPECT_EQ(shown.pixel(100, 49), white);
    EXPECT_EQ(shown.pixel(99, 50), white);
}

TEST_F(Paint, PictureLargerThanTheCardIsCutOff) {
    card.Picture = std::make_shared<Bitmap>(1000, 1000, grey);
    const Bitmap shown = test::grabCard();
    ASSERT_EQ(shown.width(), 400);
    EXPECT_EQ(shown.pixel(399, 299), grey);
}

TEST_F(Paint, TextIsPaintedAsDrawTextPaintsIt) {
    place(texts[1], 50, 60, 200, 30);
    write(texts[1], "Weak", Alignment::Left);
    Bitmap expected(400, 300);
    drawText(expected, 50, 60, texts[1].Font, black, "Weak");
    const Bitmap shown = test::grabCard();
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x) ASSERT_EQ(shown.pixel(x, y), expected.pixel(x, y));
    EXPECT_GT(inkOf(shown).right, 60);
}

TEST_F(Paint, CentredAndRightTextStandWhereTheirWidthsPutThem) {
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

TEST_F(Paint, TrailingBlanksPushCentredTextToTheLeft) {
    place(texts[1], 50, 60, 200, 30);
    write(texts[1], "HHHH", Alignment::Center);
    const Ink bare = inkOf(test::grabCard());
    texts[1].Caption = "HHHH    ";
    const Ink blanks = inkOf(test::grabCard());
    const float shift = textWidth(texts[1].Font, "    ") / px(1) / 2;
    EXPECT_NEAR(bare.left - blanks.left, shift, 1);
}

TEST_F(Paint, DoubledAmpersandPaintsOne) {
    place(texts[1], 50, 60, 200, 30);
    write(texts[1], "H&&H", Alignment::Left);
    const Ink doubled = inkOf(test::grabCard());
    const float width = textWidth(texts[1].Font, "H&H") / px(1);
    EXPECT_NEAR(doubled.right - 50, width, 2);
}

TEST_F(Paint, TextTooWideIsCutOffAtTheLabelUnlessItMayOverflow) {
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

TEST_F(Paint, NothingIsPaintedAnewWhenNothingChanged) {
    place(texts[1], 50, 60, 200, 30);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    texts[1].Tag = "not painted";
    marks[1].Caption = "hidden";
    test::moveMouse(px(5), px(5));
    test::settle();
    EXPECT_EQ(test::cardPaints().paints, before.paints);
}

TEST_F(Paint, OnlyTheChangedLabelIsPaintedAnew) {
    block(marks[1], 50, 60, 20, 10, red);
    block(marks[2], 150, 60, 20, 10, red);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    marks[1].BackColor = blue;
    test::settle();
    EXPECT_EQ(test::cardPaints().paints, before.paints + 1);
    EXPECT_EQ(test::cardPaints().pixels - before.pixels, 20 * 10);
}

TEST_F(Paint, MovedLabelPaintsItsOldAndItsNewPlace) {
    block(marks[1], 50, 60, 20, 10, red);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    marks[1].Left = px(200);
    test::settle();
    EXPECT_EQ(test::cardPaints().pixels - before.pixels, 2 * 20 * 10);
}

TEST_F(Paint, UnloadedLabelIsPaintedOver) {
    block(marks[3], 50, 60, 20, 10, red);
    test::settle();
    const test::CardPaints before = test::cardPaints();
    marks.UnloadAbove(2);
    test::settle();
    EXPECT_EQ(test::cardPaints().pixels - before.pixels, 20 * 10);
    EXPECT_EQ(test::grabCard().pixel(55, 65), white);
}

TEST_F(Paint, OverflowingTextIsPaintedAnewWhereItOverflowed) {
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

TEST_F(Paint, LabelLoadedLaterIsPainted) {
    Label& added = marks.Load(4);
    block(added, 50, 60, 20, 10, red);
    EXPECT_EQ(test::grabCard().pixel(55, 65), red);
    // Growing the array once more must not disturb what is painted.
    for (int index = 5; index < 200; ++index) marks.Load(index);
    EXPECT_EQ(test::grabCard().pixel(55, 65), red);
}

TEST_F(Paint, HandlersChangeIsOnTheScreenAfterTheEvent) {
    card.Click = [this] { block(marks[1], 50, 60, 20, 10, blue); };
    const test::CardPaints before = test::cardPaints();
    test::click(px(300), px(200));
    test::settle();
    EXPECT_GE(test::cardPaints().pixels - before.pixels, 20 * 10);
    EXPECT_EQ(test::grabCard().pixel(55, 65), blue);
}

} // namespace
} // namespace window_test
