#include "design/auto_adjust.h"

#include <cmath>

#include "design/auto_adjust_test.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class AutoAdjust : public AutoAdjustTest {
  protected:
    [[nodiscard]] float middleColumn() const {
        return std::floor(static_cast<float>(drawn.width()) / 2);
    }
    [[nodiscard]] float middleRow() const {
        return std::floor(static_cast<float>(drawn.height()) / 2);
    }
    /// The pixel in the middle of a circle's ink.
    [[nodiscard]] Place ringMiddle(int index, std::size_t size) const {
        const toolkit::Label& mark = form.AMark[index];
        const auto& offsets = form.FontOffsets[ink_kind::circle][size];
        const auto& others = form.CircleAdjust[size];
        const auto middle = [this](float edge, float other) {
            return std::floor((edge + other + twips() / 2) / 2 / twips());
        };
        return {middle(mark.Left + offsets[inkLeft], mark.Left + others[1]),
                middle(mark.Top + others[2], mark.Top + offsets[inkBottom])};
    }
};

TEST_F(AutoAdjust, IsChosenInDesignModeOnly) {
    start();
    form.MShapes.Visible = true;
    EXPECT_FALSE(chooseMenu("Design>Auto-adjust"));
    pressDesignKey();
    pressDesignKey();
    form.MShapes.Visible = true;
    window->update();
    EXPECT_FALSE(chooseMenu("Design>Auto-adjust"));
    EXPECT_FALSE(traced("MAutoAdjust_Click"));
}

TEST_F(AutoAdjust, SearchesForEachMarkInOrderAndThenForEachText) {
    writeLayout(smallLayout({{100, 100, 0, 0, 1, 1},
                             {200, 100, 0, 0, 1, 1, 161},
                             {300, 100, 0, 0, 1, 1},
                             {400, 100, 0, 0, 1, 1, 161}},
                            {{100, 300, 300, 0}, {100, 400, 300, 0}}, "1,2\r\n", 2));
    designOnBlankCard();
    form.Trace.clear();
    run();
    const std::vector<std::string> lines = {"MAutoAdjust_Click",
                                            "FindHVAdj",
                                            "FindCircleAdj",
                                            "FindHVAdj",
                                            "FindCircleAdj",
                                            "FindHVAdj",
                                            "FindHVAdj",
                                            "True RestoreBackgroundPicture ",
                                            "SetImageSize 0.5, False, True",
                                            "SetImageSize results: 1, 1, 1, 1"};
    EXPECT_EQ(traceLines(), lines);
}

TEST_F(AutoAdjust, ACheckBeginsOnePixelInsideItsBoxTwoAboveItsLowerSide) {
    designOnBlankCard();
    const Place ink = checkInk(1);
    const int left = static_cast<int>(ink.left) - 2;
    const int bottom = static_cast<int>(ink.top) + 4;
    drawBox(left, bottom - 14, left + 14, bottom);
    run();
    EXPECT_EQ(checkInk(1), (Place{static_cast<float>(left) + 1, static_cast<float>(bottom) - 2}));
}

TEST_F(AutoAdjust, ABoxWithALineOfTwoPixelsPutsItsCheckOnePixelLower) {
    designOnBlankCard();
    for (const int index : {1, 2}) {
        const Place ink = checkInk(index);
        draw(static_cast<int>(ink.left) - 20, static_cast<int>(ink.top) + 3, 50, index);
    }
    const Places before = placesOf(form.AMark);
    run();
    EXPECT_EQ(moved(form.AMark[1], before[0]), (Place{1, 1}));
    EXPECT_EQ(moved(form.AMark[2], before[1]), (Place{1, 2}));
}

TEST_F(AutoAdjust, ACheckWithoutALineMovesByTheConstantsAndWhatIsBesideIt) {
    designOnBlankCard();
    // Beside the second one, five pixels above its foot and out of its column.
    const Place ink = checkInk(2);
    draw(static_cast<int>(ink.left) - 3, static_cast<int>(ink.top) - 5, 1, 1);
    const Places before = placesOf(form.AMark);
    run();
    EXPECT_EQ(moved(form.AMark[1], before[0]), (Place{1, -2}));
    EXPECT_EQ(moved(form.AMark[2], before[1]), (Place{-2, -2}));
}

TEST_F(AutoAdjust, ABoxToTheRightOnlyAddsOnePixelAndOneToTheLeftNone) {
    designOnBlankCard();
    for (const int index : {1, 2}) {
        const Place ink = checkInk(index);
        const int side = static_cast<int>(ink.left) + (index == 1 ? 5 : -2);
        draw(static_cast<int>(ink.left) - 20, static_cast<int>(ink.top) + 2, 50, 1);
        draw(side, static_cast<int>(ink.top) - 3, 1, 1);
    }
    const Places before = placesOf(form.AMark);
    run();
    EXPECT_EQ(moved(form.AMark[1], before[0]), (Place{5 + 1 + 1, 0}));
    EXPECT_EQ(moved(form.AMark[2], before[1]), (Place{-2 + 1, 0}));
}

TEST_F(AutoAdjust, FilledInSquaresAreChecks) {
    writeOptions("Zoom=5\r\nFillincheckmarks=1\r\n");
    designOnBlankCard();
    ASSERT_EQ(form.AMark[1].Caption, "n");
    const Places before = placesOf(form.AMark);
    run();
    EXPECT_EQ(moved(form.AMark[1], before[0]), (Place{1, -2}));
    EXPECT_EQ(count("FindHVAdj"), 7);
    EXPECT_EQ(count("FindCircleAdj"), 1);
}

TEST_F(AutoAdjust, ACircleGoesAroundItsWord) {
    designOnBlankCard();
    const Place ring = ringMiddle(4, 2);
    const int column = static_cast<int>(ring.left);
    const int row = static_cast<int>(ring.top);
    draw(column - 1, row - 3, 7, 5);
    run();
    EXPECT_EQ(ringMiddle(4, 2), (Place{ring.left + 2, ring.top - 1}));
}

TEST_F(AutoAdjust, AnEmptyPlaceSendsItsCircleToTheMiddleOfTheCard) {
    designOnBlankCard();
    run();
    const Place middle = ringMiddle(4, 2);
    EXPECT_EQ(middle.left, middleColumn());
    EXPECT_EQ(middle.top, middleRow());
}

/// What a circle has found is gone for the fields that follow, and only for these.
TEST_F(AutoAdjust, FieldsAfterACircleDoWithoutTheInkOfItsWord) {
    writeLayout(smallLayout({{100, 100, 0, 0, 1, 1},
                             {100, 100, 0, 0, 1, 1, 161},
                             {100, 100, 0, 0, 1, 1},
                             {100, 100, 0, 0, 1, 1, 161}},
                            {{100, 90, 20, 0}}, "1,2\r\n", 2));
    designOnBlankCard();
    const Place ring = ringMiddle(2, 2);
    const Place ink = checkInk(1);
    // The word hangs on the line under the checks and the text.
    draw(static_cast<int>(ring.left), static_cast<int>(ring.top) - 3, 1, 40);
    draw(80, static_cast<int>(ink.top) + 3, 80, 1);
    draw(80, static_cast<int>(footOf(1)) + 5, 80, 1);
    const Places before = placesOf(form.AMark);
    const float text = form.AText[1].Top;
    run();
    EXPECT_EQ(moved(form.AMark[1], before[0]).top, 3 - 2);
    EXPECT_EQ(moved(form.AMark[3], before[2]).top, -2) << "the line is gone";
    EXPECT_EQ(form.AText[1].Top, text - 4 * pixel) << "its line is gone, too";
    EXPECT_EQ(ringMiddle(4, 2).left, middleColumn());
}

/// A size 1 circle is drawn at the medium size here, but at the layout's size on other screens.
TEST_F(AutoAdjust, ACircleIsMeasuredAsItIsDrawn) {
    designOnBlankCard();
    ASSERT_EQ(form.AMark[4].Font.Size, form.MarkFontSize[2]);
    for (const std::size_t size : {1U, 2U, 3U}) {
        form.AMark[4].Move(400 * pixel, 100 * pixel);
        form.AMark[4].Font.Size = form.MarkFontSize[size];
        blank();
        const Place ring = ringMiddle(4, size);
        draw(static_cast<int>(ring.left), static_cast<int>(ring.top) - 5, 1, 15);
        run();
        EXPECT_EQ(ringMiddle(4, size), (Place{ring.left, ring.top + 2})) << size;
    }
}

TEST_F(AutoAdjust, ACheckIsMeasuredAsItIsDrawn) {
    designOnBlankCard();
    for (const std::size_t size : {1U, 2U, 3U}) {
        toolkit::Label& mark = form.AMark[1];
        mark.Move(400 * pixel, 300 * pixel);
        mark.Font.Size = form.MarkFontSize[size];
        blank();
        const Place ink = inkOf(mark, ink_kind::check, size);
        draw(380, static_cast<int>(ink.top) + 1, 60, 1);
        draw(static_cast<int>(ink.left) - 4, static_cast<int>(ink.top) - 4, 1, 1);
        run();
        EXPECT_EQ(inkOf(mark, ink_kind::check, size), (Place{ink.left - 3, ink.top - 1})) << size;
    }
}

TEST_F(AutoAdjust, OnAScreenOfOtherPixelsEachSizeOfCircleGoesAroundItsWord) {
    toolkit::overrideScreen({.twipsPerPixel = 12, .width = 24000, .height = 24000});
    std::string layout = smallLayout({{100, 100, 0, 0, 1, 1, 161},
                                      {200, 100, 0, 0, 1, 2, 161},
                                      {300, 100, 0, 0, 1, 3, 161},
                                      {400, 100, 0, 0, 1, 1}},
                                     {{100, 300, 300, 0, 1, 2}});
    layout.replace(layout.find("15,19200"), 2, "12");
    writeLayout(layout);
    designOnBlankCard();
    ASSERT_EQ(twips(), 12);
    Places rings;
    for (int size = 1; size <= 3; ++size) {
        rings.push_back(ringMiddle(size, static_cast<std::size_t>(size)));
        draw(static_cast<int>(rings.back().left) - 2, static_cast<int>(rings.back().top) - 4, 3, 5);
    }
    draw(90, static_cast<int>(footOf(1, 2)) + 4, 300, 1);
    const float text = form.AText[1].Top;
    run();
    for (int size = 1; size <= 3; ++size) {
        const Place& ring = rings[static_cast<std::size_t>(size) - 1];
        EXPECT_EQ(ringMiddle(size, static_cast<std::size_t>(size)),
                  (Place{ring.left - 1, ring.top - 2}))
            << size;
    }
    EXPECT_EQ(placeOf(form.AMark[4]), (Place{401, 98}));
    EXPECT_EQ(form.AText[1].Top, text + 4 * 12 - 5);
}

TEST_F(AutoAdjust, AMarkOfAnotherSizeIsMeasuredAsASmallOne) {
    designOnBlankCard();
    form.AMark[1].Font.Size = 7;
    const Place ink = inkOf(form.AMark[1], ink_kind::check, 1);
    draw(80, static_cast<int>(ink.top) + 1, 60, 1);
    run();
    EXPECT_EQ(inkOf(form.AMark[1], ink_kind::check, 1).top, ink.top - 1);
}

TEST_F(AutoAdjust, TextsStandAboveTheirLinesAsTheirSizesSay) {
    writeLayout(smallLayout(
        {}, {{100, 300, 300, 0, 1, 1}, {100, 400, 300, 0, 1, 2}, {100, 500, 300, 0, 1, 3}}));
    designOnBlankCard();
    Places before;
    for (int index = 1; index <= 3; ++index) {
        const auto size = static_cast<std::size_t>(index);
        before.push_back(placeOf(form.AText[index]));
        draw(80, static_cast<int>(footOf(index, size)) + 7, 400, 1);
        // What is over a whole pixel is cut off before the text moves.
        form.AText[index].Top += 6;
    }
    const float width = form.AText[1].Width;
    run();
    EXPECT_EQ(moved(form.AText[1], before[0]), (Place{0, 7 - 4}));
    EXPECT_EQ(form.AText[2].Top / pixel, before[1].top + 7 - 5 / pixel);
    EXPECT_EQ(moved(form.AText[3], before[2]), (Place{0, 7 - 6}));
    EXPECT_EQ(form.AText[1].Width, width);
}

TEST_F(AutoAdjust, ATextsTopIsCutTowardsZeroFromItsNearestTwip) {
    designOnBlankCard();
    form.AText[1].Top = 300 * pixel - 0.4F;
    form.AText[2].Top = -400 * pixel - 1;
    form.AText[2].Left = -5000 * pixel;
    const float foot = form.FontOffsets[ink_kind::text][1][inkBottom] / pixel;
    draw(80, 299 + static_cast<int>(foot) + 5, 400, 1);
    run();
    EXPECT_EQ(form.AText[1].Top, (300 + 5 - 4) * pixel) << "nearly 300 is 300";
    EXPECT_EQ(form.AText[2].Top, (-400 - 3 - 4) * pixel) << "off the card all is ink";
}

/// A full field of the card before may have left its smaller font behind.
TEST_F(AutoAdjust, ATextsSizeIsThatOfTheLayout) {
    writeLayout(smallLayout({}, {{100, 300, 300, 0, 1, 3}, {100, 400, 300, 0, 1, 3}}));
    designOnBlankCard();
    form.AText[2].Font.Size = form.TextFontSize[1];
    run();
    EXPECT_EQ(form.AText[1].Top, (300 - 6) * pixel);
    EXPECT_EQ(form.AText[2].Top, (400 - 6) * pixel);
}

TEST_F(AutoAdjust, TwiceTheSizeDoublesEveryReach) {
    writeOptions("Zoom=11\r\n");
    designOnBlankCard();
    ASSERT_EQ(form.CardScale, 2);
    const Place ink = checkInk(1);
    draw(static_cast<int>(ink.left) - 20, static_cast<int>(ink.top) + 12, 60, 1);
    const float foot = footOf(1);
    draw(200, static_cast<int>(foot) + 21, 600, 1);
    const Places before = placesOf(form.AMark);
    const Place text = placeOf(form.AText[1]);
    run();
    EXPECT_EQ(moved(form.AMark[1], before[0]), (Place{1, 12 - 2}));
    EXPECT_EQ(moved(form.AMark[2], before[1]), (Place{1, -2}));
    // Twice two thirds of a pixel are one more than the reach of twenty.
    EXPECT_EQ(moved(form.AText[1], text), (Place{0, 20 - 4}));
}

TEST_F(AutoAdjust, ASecondRunMovesNothing) {
    for (const char* zoom : {"Zoom=5\r\n", "Zoom=11\r\n"}) {
        writeOptions(zoom);
        designOnBlankCard();
        for (int index = 1; index <= 3; ++index) {
            const Place ink = checkInk(index);
            const int left = static_cast<int>(ink.left) - index;
            const int bottom = static_cast<int>(ink.top) + index;
            drawBox(left, bottom - 14, left + 14, bottom);
        }
        for (int index = 1; index <= 4; ++index)
            draw(0, static_cast<int>(footOf(index)) + index, drawn.width(), 1);
        const Place ring = ringMiddle(4, 2);
        draw(static_cast<int>(ring.left) - 4, static_cast<int>(ring.top) - 3, 7, 11);
        const Places unmoved = placesOf(form.AMark);
        run();
        const Places marks = placesOf(form.AMark);
        const Places texts = placesOf(form.AText);
        EXPECT_NE(marks, unmoved);
        run();
        EXPECT_EQ(placesOf(form.AMark), marks) << zoom;
        EXPECT_EQ(placesOf(form.AText), texts) << zoom;
        window.reset();
        form.Journal.lock.release();
    }
}

TEST_F(AutoAdjust, HolesInTheLayoutStayAsTheyAre) {
    std::string layout = smallLayout({{100, 100, 0, 0, 1, 1}, {200, 100, 0, 0, 1, 1}},
                                     {{100, 300, 300, 0}, {100, 400, 300, 0}});
    layout.replace(layout.find("\r\n2,200,100") + 2, 1, "1");
    writeLayout(layout);
    designOnBlankCard();
    ASSERT_FALSE(isField(form.AMark[2]));
    const toolkit::Label hole = form.AMark[2];
    form.Trace.clear();
    run();
    EXPECT_EQ(form.AMark[2], hole);
    EXPECT_EQ(count("FindCircleAdj"), 0);
    EXPECT_EQ(count("FindHVAdj"), 3);
}

/// Such a check hasn't gone far, and comes back run by run.
TEST_F(AutoAdjust, ACheckOffTheLeftEdgeComesNearer) {
    designOnBlankCard();
    form.AMark[1].Left = -100 * pixel;
    const Place before = placeOf(form.AMark[1]);
    run();
    EXPECT_EQ(moved(form.AMark[1], before), (Place{2 + 1, -2 - 2}));
}

} // namespace
} // namespace zev::test
