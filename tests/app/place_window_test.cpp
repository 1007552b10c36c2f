#include "app/place_window.h"

#include "app/layouts.h"
#include "layout/initialize_run.h"
#include "layout/write_layout.h"
#include "toolkit/window/screen.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

class PlaceWindow : public FormTest {
  protected:
    PlaceWindow() { writeLayout(fewFields()); }
    /// Places the window of a card of 200 x 100 pixels on a screen of 1000 x 800.
    void placeWith(const toolkit::TaskBar& bar, float cardWidth = 200, float cardHeight = 100) {
        wireOnly();
        form.Top = 0;
        form.TwipsPerPixel = 15;
        form.FrameWidth = 10 * pixel;
        form.FrameHeight = 40 * pixel;
        form.P1.Move(30, 30, cardWidth * pixel, cardHeight * pixel);
        toolkit::overrideScreen(
            {.width = 1000 * pixel, .height = 800 * pixel, .taskBar = bar, .hasTaskBar = true});
        placeWindow(form, run);
    }
    InitializeRun run;
};

TEST_F(PlaceWindow, ASmallCardGetsAWindowOfItsSizeInTheMiddle) {
    placeWith({});
    EXPECT_EQ(form.Width, 210 * pixel);
    EXPECT_EQ(form.Height, 140 * pixel);
    EXPECT_EQ(form.Left, 395 * pixel);
    EXPECT_EQ(form.Top, 0);
    EXPECT_EQ(form.P1.Left, 0);
    EXPECT_EQ(form.P1.Top, 0);
    EXPECT_EQ(run.step, 800);
}

TEST_F(PlaceWindow, ALargeCardGetsWhatTheBottomBarLeavesOfTheScreen) {
    placeWith({.Left = 0, .Top = 760, .Width = 1000, .Height = 40}, 2000, 2000);
    EXPECT_EQ(form.Width, 1000 * pixel);
    EXPECT_EQ(form.Height, 760 * pixel);
    EXPECT_EQ(form.Left, 0);
    EXPECT_EQ(form.Top, 0);
}

TEST_F(PlaceWindow, ABarAtTheTopMovesTheWindowBelowIt) {
    placeWith({.Left = 0, .Top = 0, .Width = 1000, .Height = 40}, 2000, 2000);
    EXPECT_EQ(form.Top, 40 * pixel);
    EXPECT_EQ(form.Height, 760 * pixel);
    placeWindow(form, run);
    EXPECT_EQ(form.Top, 40 * pixel);
}

TEST_F(PlaceWindow, ABarAtTheLeftMovesTheWindowBesideIt) {
    placeWith({.Left = 0, .Top = 0, .Width = 60, .Height = 800}, 2000, 100);
    EXPECT_EQ(form.Width, 940 * pixel);
    EXPECT_EQ(form.Left, 60 * pixel);
    EXPECT_EQ(form.Top, 0);
}

TEST_F(PlaceWindow, ABarAtTheRightTakesItsWidthOnly) {
    placeWith({.Left = 940, .Top = 0, .Width = 60, .Height = 800});
    EXPECT_EQ(form.Left, (940 - 210) / 2.0F * pixel);
}

TEST_F(PlaceWindow, WhilePrintingTheWindowStays) {
    form.Printing = true;
    placeWith({});
    EXPECT_EQ(form.Width, 9600);
    EXPECT_EQ(form.P1.Left, 0);
}

TEST_F(PlaceWindow, AWindowThatFillsTheScreenStaysAndItsCardMoves) {
    placeWith({});
    form.FillsScreen = true;
    form.Left = -4;
    form.Width = 1008 * pixel;
    form.P1.Move(-30, -30);
    placeWindow(form, run);
    EXPECT_EQ(form.Left, -4);
    EXPECT_EQ(form.Width, 1008 * pixel);
    EXPECT_EQ(form.Height, 140 * pixel);
    EXPECT_EQ(form.P1.Left, 0);
    EXPECT_EQ(form.P1.Top, 0);
    EXPECT_EQ(run.step, 800);
}

TEST_F(PlaceWindow, ARebuildPlacesTheWindowAroundTheCardAndItsRealFrame) {
    start();
    form.Top = 0;
    RebuildScreenImage(form);
    EXPECT_EQ(form.Width, form.P1.Width + form.FrameWidth);
    EXPECT_EQ(form.Height, form.P1.Height + form.FrameHeight);
    EXPECT_GE(form.Left, 0);
}

} // namespace
} // namespace zev::test
