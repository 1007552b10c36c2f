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

TEST_F(OnScreen, TextIsPulledInByTwiceItsHeightAndWhole) {
    startAt(0, 0, 5000, 8000);
    CheckOnScreen(form, 1);
    // A quarter of its width would show just that quarter: its 4000 end 4 pixels before 4880.
    expectAt(4880 - 60 - 10000, -1600 - 600);
    EXPECT_TRUE(traced("  CheckOnScreen results: P1 was: 0, 0 ... is: -5180, -2200"));
}

TEST_F(OnScreen, TextLeftOfTheFormIsPulledInByAQuarterOfItsWidth) {
    startAt(0, 0, 15000, 15000);
    form.P1.Move(-7000, 0);
    CheckOnScreen(form, 1);
    // At 120 - 7000 + 6000.
    expectAt(-7000 + 880 + 1000, 0);
}

TEST_F(OnScreen, FieldThatIsCutByAnEdgeOfTheFormIsBroughtInWhole) {
    startAt(0, 0, 15000, 15000);
    // The inside is 14880 by 14400; the mark is 300 by 450, the text 4000 by 300.
    form.P1.Move(14880 - 6299, 14400 - 9449);
    CheckOnScreen(form, 1001);
    expectAt(14880 - 6300 - 60, 14400 - 9450 - 60);
    form.P1.Move(-6001, -9001);
    CheckOnScreen(form, 1001);
    expectAt(-6000 + 60, -9000 + 60);
    form.P1.Move(14880 - 9000, 14400 - 9100);
    CheckOnScreen(form, 1);
    expectAt(14880 - 10000 - 60, 14400 - 9300 - 60);
    form.P1.Move(14880 - 10000, 14400 - 9300);
    CheckOnScreen(form, 1);
    expectAt(14880 - 10000, 14400 - 9300);
}

TEST_F(OnScreen, FieldThatTheScreensEdgeOrTheTaskBarCutsIsBroughtInWhole) {
    startAt(0, 0, 15000, 15000);
    struct Case {
        toolkit::TaskBar bar;
        float left, top, wantedLeft, wantedTop;
    };
    // What can be seen ends at 12000 - 120 and 11000 - 600, or before the bar of 600 twips.
    const std::vector<Case> cases{
        {{}, 5700, 1100, 11880 - 6300 - 60, 10400 - 9450 - 60},
        {{0, 693, 800, 40}, 0, 500, 0, 9800 - 9450 - 60},
        {{760, 0, 40, 733}, 5100, 0, 11280 - 6300 - 60, 0},
        {{0, 0, 40, 733}, -5700, 0, 480 - 6000 + 60, 0},
    };
    for (const auto& one : cases) {
        setScreen(12000, 11000, one.bar);
        form.P1.Move(one.left, one.top);
        CheckOnScreen(form, 1001);
        expectAt(one.wantedLeft, one.wantedTop);
    }
}

TEST_F(OnScreen, FieldBehindATaskBarAtTheTopIsBroughtInWhole) {
    startAt(0, 0, 9000, 9000);
    setScreen(12000, 11000, {0, 0, 800, 60});
    form.P1.Move(0, -8950);
    CheckOnScreen(form, 1001);
    expectAt(0, 900 - 600 - 9000 + 60);
}

TEST_F(OnScreen, FormBeyondTheUpperLeftOfTheScreenShowsTheFieldWholeOnIt) {
    startAt(-3000, -4000, 15000, 15000);
    // The screen begins at 2880 and 3400 of the form's inside; the mark's third lies on it.
    form.P1.Move(2800 - 6000, 3300 - 9000);
    CheckOnScreen(form, 1001);
    expectAt(2880 - 6000 + 60, 3400 - 9000 + 60);
}

TEST_F(OnScreen, OfAFieldThatIsLargerThanTheFormTheBeginningIsShown) {
    startAt(0, 0, 4000, 15000);
    CheckOnScreen(form, 1);
    expectAt(-6000, 0);
    form.Height = 500;
    CheckOnScreen(form, 1);
    expectAt(-6000, -9000);
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
