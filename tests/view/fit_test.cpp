#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/window/screen.h"
#include "view/fit.h"

namespace zev::test {
namespace {

class Fit : public FormTest {
  protected:
    Fit() { writeLayout(fewFields()); }
    static void useScreen(float width, float height, const toolkit::TaskBar& bar = {}) {
        toolkit::overrideScreen(
            {.width = width * pixel, .height = height * pixel, .taskBar = bar, .hasTaskBar = true});
    }
    /// The scale of a card that takes this many pixels less the frame.
    [[nodiscard]] float widthScale(float pixels) const {
        return (pixels * pixel - form.FrameWidth) / (2396 * pixel);
    }
    [[nodiscard]] float heightScale(float pixels) const {
        return (pixels * pixel - form.FrameHeight - 8 * pixel) / (2473 * pixel);
    }
};

TEST_F(Fit, ToWidthTakesTheScreensWidthLessTheFrame) {
    useScreen(1600, 1200);
    start();
    MFitScreenWidth_Click(form);
    EXPECT_EQ(form.ZoomTable[0], widthScale(1600));
    EXPECT_EQ(form.LastImageScale, form.ZoomTable[0]);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_FALSE(form.MFitScreenHeight.Checked);
    EXPECT_FALSE(form.Zooming);
    EXPECT_TRUE(traced("MFitScreenWidth"));
}

TEST_F(Fit, ToWidthSparesASideBar) {
    useScreen(1600, 1200, {.Left = 0, .Top = 0, .Width = 60, .Height = 1200});
    start();
    MFitScreenWidth_Click(form);
    EXPECT_EQ(form.ZoomTable[0], widthScale(1540));
}

TEST_F(Fit, ToWidthPassesOverBarsAtTopAndBottom) {
    useScreen(1600, 1200, {.Left = 0, .Top = 0, .Width = 1600, .Height = 40});
    start();
    MFitScreenWidth_Click(form);
    EXPECT_EQ(form.ZoomTable[0], widthScale(1600));
    MFitScreenWidth_Click(form);
    useScreen(1600, 1200, {.Left = 0, .Top = 1160, .Width = 30, .Height = 40});
    MFitScreenWidth_Click(form);
    EXPECT_EQ(form.ZoomTable[0], widthScale(1600));
}

TEST_F(Fit, ToHeightKeepsEightPixelsFree) {
    useScreen(1600, 1200);
    start();
    MFitScreenHeight_Click(form);
    EXPECT_EQ(form.ZoomTable[0], heightScale(1200));
    EXPECT_TRUE(form.MFitScreenHeight.Checked);
    EXPECT_TRUE(traced("MFitScreenHeight_Click"));
}

TEST_F(Fit, ToHeightSparesABarAtTheBottomOnly) {
    useScreen(1600, 1200, {.Left = 0, .Top = 1160, .Width = 1600, .Height = 40});
    start();
    MFitScreenHeight_Click(form);
    EXPECT_EQ(form.ZoomTable[0], heightScale(1160));
    MFitScreenHeight_Click(form);
    useScreen(1600, 1200, {.Left = 0, .Top = 0, .Width = 1600, .Height = 40});
    MFitScreenHeight_Click(form);
    EXPECT_EQ(form.ZoomTable[0], heightScale(1200));
}

TEST_F(Fit, ASecondTimeGoesBackToTheZoomStep) {
    start();
    MFitScreenWidth_Click(form);
    MFitScreenWidth_Click(form);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_EQ(form.ZoomTable[0], 0);
    EXPECT_EQ(form.LastImageScale, 0.5F);
    MFitScreenHeight_Click(form);
    MFitScreenHeight_Click(form);
    EXPECT_EQ(form.ZoomTable[0], 0);
    EXPECT_EQ(form.LastImageScale, 0.5F);
}

TEST_F(Fit, OneTurnsTheOtherOff) {
    useScreen(1600, 1200);
    start();
    MFitScreenWidth_Click(form);
    MFitScreenHeight_Click(form);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_TRUE(form.MFitScreenHeight.Checked);
    EXPECT_EQ(form.LastImageScale, heightScale(1200));
}

TEST_F(Fit, ToAWidthThatIsTheSameRebuildsNothing) {
    start();
    MFitScreenWidth_Click(form);
    form.MFitScreenWidth.Checked = false;
    form.Trace.clear();
    MFitScreenWidth_Click(form);
    EXPECT_FALSE(traced("RebuildScreenImage"));
}

TEST_F(Fit, ToAHeightThatIsTheSameRebuildsAllTheSame) {
    start();
    MFitScreenHeight_Click(form);
    form.MFitScreenHeight.Checked = false;
    form.Trace.clear();
    MFitScreenHeight_Click(form);
    EXPECT_TRUE(traced("RebuildScreenImage"));
}

TEST_F(Fit, OfAVeryLargeScreenIsKeptButShownAtHalfSize) {
    useScreen(2600, 1200);
    start();
    MFitScreenWidth_Click(form);
    EXPECT_GT(form.ZoomTable[0], 1);
    EXPECT_EQ(form.LastImageScale, 0.5F);
}

TEST_F(Fit, OfAVerySmallScreenIsShownAtHalfSize) {
    useScreen(400, 300);
    start();
    MFitScreenWidth_Click(form);
    EXPECT_LT(form.ZoomTable[0], 0.2F);
    EXPECT_EQ(form.LastImageScale, 0.5F);
}

TEST_F(Fit, OfTheOptionsIsComputedWithoutARebuild) {
    writeOptions("Zoom=3\r\nFit=1\r\n");
    start();
    EXPECT_FALSE(traced("RebuildScreenImage"));
    EXPECT_EQ(form.LastImageScale, form.ZoomTable[0]);
    EXPECT_EQ(form.ZoomLevel, 3);
}

TEST_F(Fit, AnOpenFieldIsCommittedFirstAndTheCardKeepsItsContent) {
    start();
    clickText(1);
    toolkit::test::typeText("abc");
    MFitScreenWidth_Click(form);
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(form.AText[1].Caption, "abc");
    EXPECT_TRUE(form.CardModified);
}

TEST_F(Fit, TheStampIsRenewedAtItsEnd) {
    start();
    form.Timestamp.Caption = "old";
    MFitScreenWidth_Click(form);
    EXPECT_NE(form.Timestamp.Caption, "old");
}

} // namespace
} // namespace zev::test
