// The way along the ladder, by command and by key.
#include <array>
#include <utility>

#include "design/design_mode.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"
#include "view/fit.h"
#include "view/zoom_fixture.h"

namespace zev::test {
namespace {

namespace key = toolkit::key;
namespace shift = toolkit::shift;
using toolkit::test::typeKey;

constexpr std::array steps = {0.2F,        0.25F, 1.0F / 3.0F, 0.425F, 0.5F, 0.6F,
                              2.0F / 3.0F, 0.75F, 0.8F,        0.9F,   1.0F};

TEST_F(Zoom, IsOverAlsoWhereARebuildFails) {
    startAtStep(4);
    MShowShapes_Click(form);
    ASSERT_TRUE(form.MShowShapes.Checked);
    const auto toggle = std::exchange(form.Slots.toggleDesignMode, [] {
        throw toolkit::RunTimeError(toolkit::Failure::Overflow);
    });
    announceError("Error in RebuildScreenImage: #6, Overflow");
    announceError("Error in MZoomIn_Click: #6, Overflow");
    announceError("Error in MFitScreenHeight_Click: #6, Overflow");
    zoomIn();
    EXPECT_TRUE(traced("Error in MZoomIn_Click: #6, Overflow"));
    EXPECT_FALSE(form.Zooming);
    MFitScreenHeight_Click(form);
    EXPECT_TRUE(traced("Error in MFitScreenHeight_Click: #6, Overflow"));
    EXPECT_FALSE(form.Zooming);
    form.Slots.toggleDesignMode = toggle;
}

TEST_F(Zoom, InGoesUpTheWholeLadderAndBeepsAtItsEnd) {
    startAtStep(1);
    for (std::size_t step = 1; step < steps.size(); ++step) {
        zoomIn();
        EXPECT_EQ(form.LastImageScale, steps[step]);
        expectStep(static_cast<std::int16_t>(step + 1));
    }
    EXPECT_EQ(beeps, 0);
    form.Trace.clear();
    zoomIn();
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(rebuilt());
    EXPECT_EQ(form.LastImageScale, 1);
    expectStep(11);
}

TEST_F(Zoom, OutGoesDownTheWholeLadderAndBeepsAtItsEnd) {
    startAtStep(11);
    for (std::size_t step = steps.size() - 1; step > 0; --step) {
        zoomOut();
        EXPECT_EQ(form.LastImageScale, steps[step - 1]);
        expectStep(static_cast<std::int16_t>(step));
    }
    EXPECT_EQ(beeps, 0);
    form.Trace.clear();
    zoomOut();
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(rebuilt());
    expectStep(1);
}

TEST_F(Zoom, InFromAFitGoesToTheStepAboveIt) {
    startAtStep(9);
    fitTo(0.47F);
    zoomIn();
    expectStep(5);
    EXPECT_EQ(form.LastImageScale, 0.5F);
}

TEST_F(Zoom, OutFromAFitGoesToTheStepBelowIt) {
    startAtStep(9);
    fitTo(0.47F);
    zoomOut();
    expectStep(4);
    EXPECT_EQ(form.LastImageScale, 0.425F);
}

TEST_F(Zoom, InFromAFitOnAStepStaysThereAndLeavesTheFit) {
    startAtStep(9);
    fitTo(0.5F);
    ASSERT_EQ(form.ZoomTable[0], 0.5F);
    zoomIn();
    expectStep(5);
    EXPECT_EQ(form.LastImageScale, 0.5F);
}

TEST_F(Zoom, OutFromAFitOnAStepStaysThereAndLeavesTheFit) {
    startAtStep(9);
    fitTo(0.5F);
    ASSERT_EQ(form.ZoomTable[0], 0.5F);
    zoomOut();
    expectStep(5);
}

TEST_F(Zoom, InFromAFitAboveTheLadderGoesToItsTopAndBeeps) {
    startAtStep(6);
    fitTo(1.3F);
    EXPECT_EQ(form.LastImageScale, 0.5F);
    form.Trace.clear();
    zoomIn();
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(rebuilt());
    expectStep(11);
}

TEST_F(Zoom, OutFromAFitAboveTheLadderGoesOnFromTheKeptStep) {
    startAtStep(6);
    fitTo(1.3F);
    zoomOut();
    expectStep(5);
}

TEST_F(Zoom, AFitBelowTheLadderIsShownAtHalfSizeAndInGoesOnFromTheKeptStep) {
    startAtStep(6);
    fitTo(0.1F);
    EXPECT_EQ(form.LastImageScale, 0.5F);
    zoomIn();
    expectStep(7);
}

TEST_F(Zoom, OutFromAFitBelowTheLadderGoesToItsFootAndBeeps) {
    startAtStep(6);
    fitTo(0.1F);
    form.Trace.clear();
    zoomOut();
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(rebuilt());
    expectStep(1);
}

TEST_F(Zoom, FromAFitToHeightUnchecksIt) {
    toolkit::overrideScreen({.width = 30000, .height = 0.55F * 2473 * pixel, .hasTaskBar = true});
    startAtStep(3);
    ASSERT_TRUE(toolkit::test::chooseMenu("View>Fit to screen height"));
    ASSERT_TRUE(form.MFitScreenHeight.Checked);
    zoomIn();
    EXPECT_FALSE(form.MFitScreenHeight.Checked);
    EXPECT_EQ(form.ZoomTable[0], 0);
}

TEST_F(Zoom, PlusAndMinusOfBothKeyboardsZoomWithCtrlAlone) {
    startAtStep(5);
    for (const int plus : {key::add, key::plus}) {
        typeKey(plus, shift::ctrl);
        EXPECT_EQ(form.ZoomLevel, 6);
        for (const int held : {0, shift::shift, shift::alt}) typeKey(plus, held);
        EXPECT_EQ(form.ZoomLevel, 6);
        typeKey(plus == key::add ? key::subtract : key::minus, shift::ctrl);
        EXPECT_EQ(form.ZoomLevel, 5);
    }
}

TEST_F(Zoom, ThePlusAboveTheEqualsSignZoomsInWithCtrlAndShift) {
    startAtStep(5);
    typeKey(key::add, shift::ctrl + shift::shift);
    EXPECT_EQ(form.ZoomLevel, 5);
    typeKey(key::plus, shift::ctrl + shift::shift);
    EXPECT_EQ(form.ZoomLevel, 6);
}

TEST_F(Zoom, ANewCardBehindARefusedZoomKeepsTheSizeThatIsThere) {
    startAtStep(5);
    fitTo(1.3F);
    const float width = form.P1.Width;
    zoomIn();
    ASSERT_EQ(form.ZoomTable[0], 0);
    ASSERT_TRUE(toolkit::test::chooseMenu("File>New"));
    EXPECT_EQ(form.P1.Width, width);
    zoomOut();
    EXPECT_NEAR(form.P1.Width, 0.9F * 2396 * pixel, pixel);
}

TEST_F(Zoom, AHeldKeyGoesOnAlongTheLadder) {
    startAtStep(5);
    toolkit::test::pressKey(key::add, shift::ctrl);
    toolkit::test::repeatKey(key::add, shift::ctrl);
    toolkit::test::repeatKey(key::add, shift::ctrl);
    EXPECT_EQ(form.ZoomLevel, 8);
}

TEST_F(Zoom, ZeroTurnsFitToWidthOnAndASecondTimeChangesNothing) {
    startAtStep(5);
    typeKey(key::digit0, shift::ctrl);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    const float scale = form.ZoomTable[0];
    EXPECT_NE(scale, 0);
    form.Trace.clear();
    typeKey(key::digit0, shift::ctrl);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_EQ(form.ZoomTable[0], scale);
    EXPECT_FALSE(rebuilt());
    typeKey(96, shift::ctrl);
    EXPECT_FALSE(traced("RebuildScreenImage")) << "the keypad's zero is another key";
}

TEST_F(Zoom, ZeroTurnsAFitToHeightIntoOneToWidth) {
    startAtStep(5);
    ASSERT_TRUE(toolkit::test::chooseMenu("View>Fit to screen height"));
    typeKey(key::digit0, shift::ctrl);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_FALSE(form.MFitScreenHeight.Checked);
}

TEST_F(Zoom, KeysBelongToAnOpenFieldWhileOneIsOpen) {
    startAtStep(5);
    clickText(1);
    zoomIn();
    typeKey(key::digit0, shift::ctrl);
    EXPECT_EQ(form.ZoomLevel, 5);
    EXPECT_TRUE(form.CText.Visible);
}

TEST_F(Zoom, TheCommandCommitsAnOpenFieldAndTheCardHasTheKeysAgain) {
    startAtStep(5);
    clickText(1);
    toolkit::test::typeText("abc");
    ASSERT_TRUE(toolkit::test::chooseMenu("View>Zoom In (Bigger)                   Ctrl +"));
    EXPECT_EQ(form.AText[1].Caption, "abc");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.P1));
    zoomIn();
    zoomIn();
    EXPECT_EQ(form.ZoomLevel, 8);
}

} // namespace
} // namespace zev::test
