#include "marks/move_card.h"
#include "text/edit_test.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

/// The form's place and the screen are set by hand: the arithmetic needs no window.
class OnScreen : public EditTest {
  protected:
    void startAt(float left, float top, float width, float height) {
        startSmall();
        form.Left = left;
        form.Top = top;
        form.Width = width;
        form.Height = height;
        form.FrameWidth = 120;
        form.FrameHeight = 600;
        form.AMark[1].Move(6000, 9000, 300, 450);
        form.AText[1].Move(6000, 9000, 4000, 300);
        form.P1.Move(0, 0);
        form.Trace.clear();
    }
    void setScreen(float width, float height, toolkit::TaskBar bar) {
        toolkit::overrideScreen(
            {.width = width, .height = height, .taskBar = bar, .hasTaskBar = true});
    }
    void expectAt(float left, float top) const {
        EXPECT_FLOAT_EQ(form.P1.Left, left);
        EXPECT_FLOAT_EQ(form.P1.Top, top);
    }
};

TEST_F(OnScreen, ItemInsideTheFormStaysWhereItIs) {
    startAt(0, 0, 15000, 15000);
    CheckOnScreen(form, 1001);
    expectAt(0, 0);
    EXPECT_TRUE(traced("CheckOnScreen 1001"));
    for (const auto& line : traceLines()) EXPECT_FALSE(line.starts_with("  CheckOnScreen results"));
}

TEST_F(OnScreen, MarkBeyondRightAndBottomIsPulledInByTwiceItsSize) {
    startAt(0, 0, 5000, 8000);
    CheckOnScreen(form, 1001);
    // At 120 + 6000 + 100 it is 1220 beyond, at 600 + 9000 + 150 it is 1750 beyond.
    expectAt(-1220 - 600, -1750 - 900);
    EXPECT_TRUE(traced("  CheckOnScreen results: P1 was: 0, 0 ... is: -1820, -2650"));
}

TEST_F(OnScreen, TextIsPulledInByAQuarterOfItsWidthAndTwiceItsHeight) {
    startAt(0, 0, 5000, 8000);
    CheckOnScreen(form, 1);
    expectAt(-1120 - 1000, -1600 - 600);
}

TEST_F(OnScreen, ItemLeftOfOrAboveTheFormIsPulledBack) {
    startAt(300, 200, 15000, 15000);
    form.P1.Move(-9000, -12000);
    CheckOnScreen(form, 1001);
    // At 120 + 300 - 9000 + 6100 and 600 + 200 - 12000 + 9150.
    expectAt(-9000 + (300 + 2480) + 600, -12000 + (200 + 2050) + 900);
}

TEST_F(OnScreen, FormBeyondTheScreensEdgesCountsFromZero) {
    startAt(-3000, -4000, 15000, 15000);
    form.P1.Move(-4000, -6000);
    CheckOnScreen(form, 1001);
    // At 120 - 3000 - 4000 + 6100 and 600 - 4000 - 6000 + 9150.
    expectAt(-4000 + 780 + 600, -6000 + 250 + 900);
}

TEST_F(OnScreen, TaskBarAtTheBottomTakesItsHeightFromTheScreen) {
    startAt(0, 0, 30000, 30000);
    setScreen(6000, 9500, {0, 600, 400, 40});
    CheckOnScreen(form, 1001);
    expectAt(-(6220 - 6000) - 600, -(9750 - (9500 - 600)) - 900);
}

TEST_F(OnScreen, TaskBarAtTheTopOrSideTakesItsWidthFromTheScreen) {
    startAt(0, 0, 30000, 30000);
    setScreen(6000, 9500, {0, 0, 40, 600});
    CheckOnScreen(form, 1001);
    expectAt(-(6220 - (6000 - 600)) - 600, -(9750 - 9500) - 900);
}

TEST_F(OnScreen, ItemThatDoesNotExistIsTraced) {
    startAt(0, 0, 15000, 15000);
    announceError("Error in CheckOnScreen");
    CheckOnScreen(form, 99);
    EXPECT_TRUE(traced("Error in CheckOnScreen: #340, Control array element '99' doesn't exist"));
    expectAt(0, 0);
}

} // namespace
} // namespace zev::test
