// What a run of auto-adjust leaves behind, and what becomes of one that fails.
#include "design/auto_adjust.h"
#include "design/auto_adjust_test.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

constexpr auto* zoomIn = "View>Zoom In (Bigger)                   Ctrl +";

class AutoAdjustState : public AutoAdjustTest {
  protected:
    /// 60,000 pixels hang together where the circle is.
    void drawTooLargeAWord() {
        const Place place = placeOf(form.AMark[4]);
        draw(static_cast<int>(place.left) - 100, static_cast<int>(place.top) - 90, 300, 200);
    }
};

TEST_F(AutoAdjustState, TheCardsPictureComesBackWhole) {
    designOnBlankCard();
    const toolkit::Bitmap card = *form.P1.Picture;
    const float scale = form.LastImageScale;
    run();
    const auto bits = [](const toolkit::Bitmap& picture) {
        return std::vector<std::uint32_t>(picture.row(0), picture.row(picture.height()));
    };
    EXPECT_EQ(form.P1.Picture->width(), card.width());
    EXPECT_TRUE(bits(*form.P1.Picture) == bits(card));
    EXPECT_EQ(form.LastImageScale, scale);
}

TEST_F(AutoAdjustState, TheCardIsShownAgainWithTheUsualPointer) {
    designOnBlankCard();
    form.MousePointer = toolkit::MousePointer::Arrow;
    run();
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(AutoAdjustState, TheDesignHasChangedButNeitherTheCardNorTheFile) {
    designOnBlankCard();
    const std::string saved = dataFileContent("Definitions.Ini");
    const std::string title = form.Caption;
    ASSERT_FALSE(form.DesignDirty);
    run();
    EXPECT_TRUE(form.DesignDirty);
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.Caption, title);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), saved);
}

TEST_F(AutoAdjustState, SaveDesignKeepsTheNewPlaces) {
    designOnBlankCard();
    run();
    const Places marks = placesOf(form.AMark);
    ASSERT_EQ(marks[0], (Place{101, 98}));
    choose("Design>Save Design");
    EXPECT_NE(dataFileContent("Definitions.Ini").find("\r\n1,101,98,"), std::string::npos);
    EXPECT_NE(dataFileContent("Definitions.Ini").find("\r\n1,100,296,300,"), std::string::npos);
    EXPECT_FALSE(form.DesignDirty);
}

TEST_F(AutoAdjustState, AZoomGivesTheSavedPlacesBack) {
    designOnBlankCard();
    run();
    choose(zoomIn);
    EXPECT_FLOAT_EQ(form.AMark[1].Left, 100 * pixel * form.MarkScale);
    EXPECT_FLOAT_EQ(form.AText[1].Top, 300 * pixel * form.TextScale);
}

TEST_F(AutoAdjustState, UndoKnowsNothingOfIt) {
    designOnBlankCard();
    run();
    const Places marks = placesOf(form.AMark);
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(placesOf(form.AMark), marks);
}

TEST_F(AutoAdjustState, TheCardStillHasTheKeys) {
    designOnBlankCard();
    run();
    const Place before = placeOf(form.AMark[1]);
    typeKey(toolkit::key::right, toolkit::shift::shift);
    EXPECT_EQ(moved(form.AMark[1], before), (Place{1, 0}));
}

TEST_F(AutoAdjustState, AWordOfTooManyPixelsLeavesItsCircleAndTheRunGoesOn) {
    designOnBlankCard();
    drawTooLargeAWord();
    const Place before = placeOf(form.AMark[4]);
    announceError("Error #9 at 300 in FindCircleAdj");
    run();
    EXPECT_TRUE(traced("Error #9 at 300 in FindCircleAdj"));
    EXPECT_EQ(placeOf(form.AMark[4]), before);
    EXPECT_EQ(form.AText[4].Top, (600 - 4) * pixel);
    EXPECT_TRUE(form.DesignDirty);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_TRUE(boxes.empty());
}

/// As far as it came, the word is erased.
TEST_F(AutoAdjustState, ATooLargeWordIsErasedInPart) {
    designOnBlankCard();
    drawTooLargeAWord();
    form.P1.Picture = std::make_shared<const toolkit::Bitmap>(drawn);
    SearchedPicture picture(drawn, 15, 1);
    const CircleEdges ring{.left = form.AMark[4].Left,
                           .right = form.AMark[4].Left + 20 * pixel,
                           .top = form.AMark[4].Top,
                           .bottom = form.AMark[4].Top + 20 * pixel};
    announceError("Error #9 at 300 in FindCircleAdj");
    const WayToInk way = FindCircleAdj(form, picture, ring);
    EXPECT_EQ(way.right, 0);
    EXPECT_EQ(way.down, 0);
    int left = 0;
    for (int row = 0; row < drawn.height(); ++row) {
        for (int column = 0; column < drawn.width(); ++column)
            left += picture.isInk(SearchedPicture::Pixel{column, row}) ? 1 : 0;
    }
    EXPECT_EQ(left, 10000);
}

TEST_F(AutoAdjustState, ACircleThatWasDraggedOffTheCardStaysAway) {
    designOnBlankCard();
    form.AMark[4].Left = -100 * pixel;
    announceError("Error #9 at 300 in FindCircleAdj");
    run();
    EXPECT_TRUE(traced("Error #9 at 300 in FindCircleAdj"));
    EXPECT_EQ(form.AMark[4].Left, -100 * pixel);
}

TEST_F(AutoAdjustState, ACircleBeyondAllNumbersStaysAway) {
    designOnBlankCard();
    form.AMark[4].Left = 3e9F;
    announceError("Error #6 at 100 in FindCircleAdj");
    run();
    EXPECT_TRUE(traced("Error #6 at 100 in FindCircleAdj"));
    EXPECT_EQ(form.AMark[4].Left, 3e9F);
    EXPECT_TRUE(form.DesignDirty);
}

TEST_F(AutoAdjustState, AFailureIsToldAndLeavesTheCardHiddenUntilAZoom) {
    designOnBlankCard();
    form.AText[2].Top = 3e9F;
    announceError("Error in MAutoAdjust 6, Overflow");
    run();
    EXPECT_TRUE(traced("Error in MAutoAdjust 6, Overflow"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "MAutoAdjust: 6, Overflow");
    EXPECT_FALSE(form.P1.Visible);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Hourglass);
    EXPECT_FALSE(traced("True RestoreBackgroundPicture "));
    EXPECT_FALSE(form.DesignDirty);
    EXPECT_EQ(form.AText[1].Top, (300 - 4) * pixel) << "what was moved stays moved";
    EXPECT_EQ(form.AText[3].Top, 500 * pixel);
    choose(zoomIn);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
    EXPECT_FLOAT_EQ(form.AText[1].Top, 300 * pixel * form.TextScale);
}

TEST_F(AutoAdjustState, WithoutAPictureItFails) {
    designOnBlankCard();
    form.P1.Picture.reset();
    announceError("Error in MAutoAdjust 481, Invalid picture");
    choose("Design>Auto-adjust");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "MAutoAdjust: 481, Invalid picture");
    EXPECT_EQ(form.AMark[1].Left, 100 * pixel);
}

TEST_F(AutoAdjustState, ASearchForALineThatFailsIsNoWayAtAll) {
    designOnBlankCard();
    const SearchedPicture withoutTwips(drawn, 0, 1);
    announceError("Error in FindHVAdj 11, Division by zero");
    for (const float asked : {0.0F, verticalOnly}) {
        form.Trace.clear();
        float right = asked;
        EXPECT_EQ(FindHVAdj(form, withoutTwips, {.x = 1500, .width = 300, .y = 1500}, right), 0);
        EXPECT_EQ(right, asked);
        EXPECT_TRUE(traced("Error in FindHVAdj 11, Division by zero"));
    }
}

TEST_F(AutoAdjustState, ARunInWhichEverySearchFailsTellsEach) {
    designOnBlankCard();
    form.P1.Picture = std::make_shared<const toolkit::Bitmap>(drawn);
    form.TwipsPerPixel = 0;
    announceError("Error");
    form.TraceOn = true; // the ring would be emptied at each of them
    choose("Design>Auto-adjust");
    const std::string trace = traceFile();
    std::size_t at = 0;
    for (const char* line :
         {"MAutoAdjust_Click", "FindHVAdj", "Error in FindHVAdj 11, Division by zero", "FindHVAdj",
          "Error in FindHVAdj 11, Division by zero", "FindHVAdj",
          "Error in FindHVAdj 11, Division by zero", "FindCircleAdj",
          "Error #11 at 100 in FindCircleAdj", "FindHVAdj",
          "Error in FindHVAdj 11, Division by zero", "Error in MAutoAdjust 11, Division by zero"}) {
        at = trace.find(" " + std::string(line) + "\r\n", at);
        ASSERT_NE(at, std::string::npos) << line;
        ++at;
    }
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "MAutoAdjust: 11, Division by zero");
}

} // namespace
} // namespace zev::test
