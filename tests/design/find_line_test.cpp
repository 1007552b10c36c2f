#include "design/find_line.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "toolkit/base/error.h"

namespace zev {
namespace {

/// A blank card on which lines and words are drawn, in pixels, and the searches over it, in pixels,
/// too.
class FindLine : public testing::Test {
  protected:
    static constexpr int twips = 15;
    static constexpr float pixel = twips;

    void draw(int left, int top, int width, int height) {
        card.fill(left, top, width, height, toolkit::black);
    }
    void drawBox(int left, int top, int right, int bottom) {
        draw(left, top, right - left + 1, 1);
        draw(left, bottom, right - left + 1, 1);
        draw(left, top, 1, bottom - top + 1);
        draw(right, top, 1, bottom - top + 1);
    }
    [[nodiscard]] SearchedPicture searched(float scale = 1) const { return {card, twips, scale}; }

    struct Found {
        float down = 0;
        float right = 0;
        bool operator==(const Found&) const = default;
    };

    /// A check whose ink begins at (x, y's foot).
    [[nodiscard]] Found check(float x, float y, float width = 12, int size = 1,
                              float scale = 1) const {
        float right = 0;
        const float down = findLine(searched(scale), inPixels(x, y, width, size), right);
        return {down / pixel, right / pixel};
    }
    [[nodiscard]] float text(float x, float y, float width = 40, int size = 1,
                             float scale = 1) const {
        float right = verticalOnly;
        const float down = findLine(searched(scale), inPixels(x, y, width, size), right);
        EXPECT_EQ(right, verticalOnly);
        return down / pixel;
    }
    [[nodiscard]] static LineSearch inPixels(float x, float y, float width, int size) {
        return {.x = x * pixel, .width = width * pixel, .y = y * pixel, .size = size};
    }

    static constexpr Found nothing{0, 0};

    toolkit::Bitmap card{200, 200};
};

TEST_F(FindLine, FindsTheLineUnderACheck) {
    for (const int below : {-3, 0, 1, 6}) {
        card = toolkit::Bitmap(200, 200);
        draw(90, 100 + below, 40, 1);
        EXPECT_EQ(check(100, 100).down, static_cast<float>(below)) << below;
    }
}

TEST_F(FindLine, TakesALineOfTwoPixelsAtItsLowerOne) {
    draw(90, 104, 40, 1);
    EXPECT_EQ(check(100, 100).down, 4);
    EXPECT_EQ(text(90, 100), 4);
    draw(90, 105, 40, 1);
    EXPECT_EQ(check(100, 100).down, 5);
    EXPECT_EQ(text(90, 100), 5);
    draw(90, 106, 40, 1);
    EXPECT_EQ(check(100, 100).down, 5) << "a third one doesn't count";
}

TEST_F(FindLine, LooksDownThreePixelsInsideACheck) {
    draw(103, 102, 1, 1);
    EXPECT_EQ(check(100, 100).down, 2);
    EXPECT_EQ(check(101, 100).down, 0);
    EXPECT_EQ(check(99, 100).down, 0);
    EXPECT_EQ(check(99.95F, 100).down, 0) << "a place is in the pixel that it lies in";
}

TEST_F(FindLine, SearchesForALineBelowACheckAsFarAsSixPixels) {
    draw(90, 107, 40, 1);
    EXPECT_EQ(check(100, 100), nothing);
    EXPECT_EQ(check(100, 101).down, 6);
}

TEST_F(FindLine, BeginsThreePixelsAboveTheFootAndFiveForALargeCheck) {
    draw(90, 95, 40, 1);
    // The small one finds it on its way up only, which counts a pixel more.
    EXPECT_EQ(check(100, 100, 12, 1).down, -6);
    EXPECT_EQ(check(100, 100, 12, 2).down, -6);
    EXPECT_EQ(check(100, 100, 12, 3).down, -5);
}

TEST_F(FindLine, LooksUpFromTheFootAsFarAsSixPixels) {
    draw(90, 94, 40, 1);
    EXPECT_EQ(check(100, 100).down, -7);
    EXPECT_EQ(check(100, 101), nothing);
}

TEST_F(FindLine, TheWayUpBeginsOnePixelBelowTheFoot) {
    // So small a card that the way down reads one row alone, that above the foot.
    constexpr float tiny = 0.1F;
    draw(90, 102, 40, 1);
    EXPECT_EQ(check(100, 100, 12, 1, tiny).down, 0);
    EXPECT_EQ(check(100, 101, 12, 1, tiny).down, 1);
    EXPECT_EQ(check(100, 102, 12, 1, tiny).down, -1);
}

TEST_F(FindLine, TheWayUpOfATextReadsFromItsFootItself) {
    draw(90, 100, 60, 1);
    EXPECT_EQ(text(100, 112, 40, 1, 2), -13);
    EXPECT_EQ(text(100, 113, 40, 1, 2), 0);
}

TEST_F(FindLine, StepsKeepTheFractionOfTheScale) {
    draw(90, 104, 40, 1);
    // From -2.55 by whole pixels: rows 97 (97.45), 98, ... the line is met at 104.45.
    EXPECT_FLOAT_EQ(check(100, 100, 12, 1, 0.85F).down, 4.45F);
    EXPECT_FLOAT_EQ(check(100, 100.9F, 12, 1, 0.85F).down, 4.45F) << "from the whole pixel";
}

TEST_F(FindLine, FindsTheBoxToTheLeftOfItsColumn) {
    drawBox(98, 88, 110, 101);
    EXPECT_EQ(check(100, 100), (Found{.down = 1, .right = -2}));
    EXPECT_EQ(check(97, 100), (Found{.down = 1, .right = 1}));
    draw(97, 88, 1, 14);
    EXPECT_EQ(check(100, 100), (Found{.down = 1, .right = -3})) << "two pixels thick";
    draw(96, 88, 1, 14);
    EXPECT_EQ(check(100, 100), (Found{.down = 1, .right = -3})) << "a third one doesn't count";
}

TEST_F(FindLine, FindsABoxToTheRightOfItsColumnOnePixelOn) {
    draw(90, 101, 40, 1);
    draw(105, 88, 1, 14);
    EXPECT_EQ(check(100, 100), (Found{.down = 1, .right = 6}));
    draw(95, 88, 1, 14);
    EXPECT_EQ(check(100, 100), (Found{.down = 1, .right = -5})) << "the left goes first";
}

TEST_F(FindLine, LooksToBothSidesAsFarAsHalfTheWidth) {
    draw(90, 101, 40, 1);
    draw(94, 88, 1, 13);
    EXPECT_EQ(check(100, 100, 12), (Found{.down = 1, .right = -6}));
    EXPECT_EQ(check(100, 100, 11.9F), (Found{.down = 1, .right = 0})) << "half of 11 pixels";
    card.fill(94, 88, 1, 13, toolkit::white);
    draw(106, 88, 1, 13);
    EXPECT_EQ(check(100, 100, 12), (Found{.down = 1, .right = 7}));
    EXPECT_EQ(check(100, 100, 11.9F), (Found{.down = 1, .right = 0}));
}

TEST_F(FindLine, HalfTheWidthIsThatOfItsWholePixels) {
    draw(90, 101, 40, 1);
    draw(93, 88, 1, 13);
    // From 2.55 by whole pixels: the column is met at -6.45. Half of 12.95 pixels would reach it.
    EXPECT_FLOAT_EQ(check(100, 100, 13, 1, 0.85F).right, -6.45F);
    EXPECT_EQ(check(100, 100, 12.95F, 1, 0.85F).right, 0);
}

TEST_F(FindLine, TheRowToTheSidesLiesFivePixelsAboveTheLineFound) {
    draw(90, 104, 40, 1);
    draw(98, 99, 1, 1);
    EXPECT_EQ(check(100, 100), (Found{.down = 4, .right = -2}));
    card.fill(98, 99, 1, 1, toolkit::white);
    draw(98, 98, 1, 1);
    draw(98, 100, 1, 1);
    EXPECT_EQ(check(100, 100), (Found{.down = 4, .right = 0}));
}

TEST_F(FindLine, ATextLooksInItsMiddle) {
    draw(119, 103, 1, 1);
    EXPECT_EQ(text(100, 100, 38), 3);
    EXPECT_EQ(text(100, 100, 40), 0);
    EXPECT_EQ(text(100, 100, 39), 3) << "half of 585 twips, without its fraction, is in pixel 19";
    EXPECT_EQ(text(100, 100, 39.9F), 3);
}

TEST_F(FindLine, ALargeTextLooksInItsFirstThird) {
    draw(113, 103, 1, 1);
    EXPECT_EQ(text(100, 100, 40, 3), 3);
    EXPECT_EQ(text(100, 100, 42, 3), 0);
    EXPECT_EQ(text(100, 100, 40, 2), 0);
}

TEST_F(FindLine, ATextLooksFurtherThanACheck) {
    draw(90, 110, 90, 1);
    EXPECT_EQ(text(100, 100), 10);
    EXPECT_EQ(text(100, 100, 40, 2), 10);
    EXPECT_EQ(text(100, 99), 0);
    EXPECT_EQ(text(100, 99, 40, 2), 0);
    EXPECT_EQ(text(100, 90, 40, 3), 20);
    EXPECT_EQ(text(100, 89, 40, 3), 0);
    EXPECT_EQ(text(100, 114), -4);
    EXPECT_EQ(text(100, 115), -6) << "met on the way up only";
}

TEST_F(FindLine, ATextReckonsFromTwoThirdsOfAPixelBelowItsFoot) {
    draw(90, 104, 90, 1);
    // At 0.85: 0.567 pixels below row 100, and from -3.4 on: -2.83, ... 4.17 is row 104.
    EXPECT_FLOAT_EQ(text(100, 100, 40, 1, 0.85F), 3.6F);
    // At 0.5 the row begins at 0.333 and steps are whole: 4.333 is row 104.
    EXPECT_FLOAT_EQ(text(100, 100, 40, 1, 0.5F), 4);
}

TEST_F(FindLine, TwiceTheScaleDoublesEveryReach) {
    draw(90, 112, 60, 1);
    EXPECT_EQ(check(100, 100, 12, 1, 2).down, 12);
    EXPECT_EQ(check(100, 99, 12, 1, 2).down, 0);
    // Twice two thirds of a pixel are a pixel more.
    EXPECT_EQ(text(100, 91, 40, 1, 2), 20);
    EXPECT_EQ(text(100, 90, 40, 1, 2), 0);
    EXPECT_EQ(text(100, 71, 40, 3, 2), 40);
    EXPECT_EQ(text(100, 70, 40, 3, 2), 0);
    EXPECT_EQ(check(100, 118, 12, 1, 2).down, -6);
    EXPECT_EQ(check(100, 119, 12, 1, 2).down, -8) << "met on the way up only";
    EXPECT_EQ(check(100, 122, 12, 3, 2).down, -10);
    EXPECT_EQ(check(100, 124, 12, 1, 2).down, -13);
    EXPECT_EQ(check(100, 125, 12, 1, 2).down, 0);
    EXPECT_EQ(check(86, 110, 12, 1, 2).down, 2) << "six pixels in";
    EXPECT_EQ(check(83, 110, 12, 1, 2).down, 0);
    draw(98, 104, 1, 1);
    EXPECT_EQ(check(100, 111, 12, 1, 2), (Found{.down = 1, .right = 0})) << "row 102";
    draw(98, 102, 1, 1);
    EXPECT_EQ(check(100, 111, 12, 1, 2), (Found{.down = 1, .right = -2}));
}

TEST_F(FindLine, AnyOtherColourThanTheFirstPixelsIsInk) {
    card = toolkit::Bitmap(200, 200, toolkit::rgb(250, 240, 230));
    card.fill(90, 103, 40, 1, toolkit::rgb(250, 240, 231));
    EXPECT_EQ(check(100, 100).down, 3);
    card.setPixel(0, 0, toolkit::white);
    EXPECT_EQ(check(100, 100), (Found{.down = -2, .right = 2})) << "all else is ink now";
}

TEST_F(FindLine, OutsideThePictureEverythingIsInk) {
    EXPECT_EQ(check(-10, 100), (Found{.down = -2, .right = 2}));
    EXPECT_EQ(check(100, 197).down, 4) << "rows 200 and 201";
    EXPECT_EQ(text(100, -2), -3);
    EXPECT_EQ(text(1e30F, 100), -3);
    EXPECT_EQ(text(100, std::numeric_limits<float>::quiet_NaN()), -3);
    EXPECT_EQ(text(-20.5F, 100, 40), -3) << "half a pixel left of the card is no pixel of it";
}

TEST_F(FindLine, WithoutTwipsAPlaceIsADivisionByZero) {
    float right = 0;
    try {
        (void)findLine({card, 0, 1}, {}, right);
        FAIL();
    } catch (const toolkit::RunTimeError& failure) {
        EXPECT_EQ(failure.number(), 11);
    }
}

} // namespace
} // namespace zev
