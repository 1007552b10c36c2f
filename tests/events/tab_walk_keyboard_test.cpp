// The walk without a mouse: where it begins, and how it goes on after what has interrupted it.
#include "events/tab_walk.h"
#include "text/edit_test.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
namespace key = toolkit::key;
namespace shift = toolkit::shift;

constexpr toolkit::Color frameBlue = toolkit::rgb(0, 90, 200);

class KeyboardWalk : public EditTest {
  protected:
    /// Far from all marks.
    static void pinPointer() {
        toolkit::setCursorPosition({700, 700});
        toolkit::overrideScreen({.width = 24000, .height = 24000, .pointerStays = true});
    }
    /// Whether there is a frame around the mark, beside it on all four sides.
    [[nodiscard]] bool isFramed(int mark) const {
        const auto shown = grabCard();
        const auto px = [](float twips) { return toolkit::pixelsFromTwips(twips); };
        const toolkit::Label& label = form.AMark[mark];
        const int left = px(label.Left) - 1;
        const int top = px(label.Top) - 1;
        const int right = px(label.Left + label.Width);
        const int bottom = px(label.Top + label.Height);
        const auto isBlue = [&](int x, int y) { return shown.pixel(x, y) == frameBlue; };
        const int x = (left + right) / 2;
        const int y = (top + bottom) / 2;
        return isBlue(left, y) && isBlue(right, y) && isBlue(x, top) && isBlue(x, bottom);
    }
    [[nodiscard]] static bool hasFrame() {
        const auto shown = grabCard();
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixel(x, y) == frameBlue) return true;
        return false;
    }
    /// The walk rests on a mark to which TAB has come.
    void walkToMark(int mark) {
        clickText(2);
        typeKey(key::tab);
        for (int at = 1; at < mark; ++at) typeKey(key::tab);
        ASSERT_TRUE(form.TabActive);
        ASSERT_EQ(form.TabCode, 1000 + mark);
    }
    void expectOpen(int field) const {
        EXPECT_TRUE(isEditing());
        EXPECT_EQ(form.TIndex, field);
    }
    void expectOnMark(int mark) const {
        EXPECT_FALSE(isEditing());
        EXPECT_TRUE(form.TabActive);
        EXPECT_EQ(form.TabCode, 1000 + mark);
    }
};

TEST_F(KeyboardWalk, F2AndTheViewMenuBeginItAtTheFirstFieldWithoutAClick) {
    startSmall();
    typeKey(key::f2);
    expectOpen(1);
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    EXPECT_TRUE(traced("MFirstField_Click"));
    typeText("North");
    typeKey(key::tab);
    expectOpen(2);
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_TRUE(chooseMenu("View>Go to first field"));
    expectOpen(1);
}

TEST_F(KeyboardWalk, F2InAnOpenTextKeepsWhatWasTyped) {
    startSmall();
    for (const int field : {3, 1}) {
        clickText(field);
        typeText("x");
        typeKey(key::f2);
        EXPECT_EQ(form.AText[field].Tag, "x");
        expectOpen(1);
    }
    EXPECT_TRUE(form.CardModified);
}

TEST_F(KeyboardWalk, F2LeavesAMark) {
    startSmall();
    clickMark(2);
    typeKey(key::f2);
    expectOpen(1);
    EXPECT_FALSE(form.TabActive);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(KeyboardWalk, BeginsAtTheHeadOfTheWalkWhateverItsNumber) {
    startSmall("3,1\r\n1,2\r\n2,1001\r\n1001,4\r\n1003,3\r\n", 1003);
    typeKey(key::f2);
    expectOnMark(3);
    typeKey(key::space);
    EXPECT_TRUE(form.AMark[3].Visible);
}

TEST_F(KeyboardWalk, ACircleBeginsAtTheFirstText) {
    startSmall("1001,3\r\n3,1\r\n1,2\r\n2,1001\r\n", 1001);
    EXPECT_EQ(firstItem(form), 1);
}

TEST_F(KeyboardWalk, AWalkBesideTheFirstTextBeginsAtItsLowestField) {
    startSmall("1002,3\r\n3,1003\r\n1003,1002\r\n", 1003);
    EXPECT_EQ(firstItem(form), 3);
}

TEST_F(KeyboardWalk, WithoutAWalkF2OpensTheFirstText) {
    startSmall({}, 0);
    typeKey(key::f2);
    expectOpen(1);
}

TEST_F(KeyboardWalk, AHoleIsNotTheFirstField) {
    startSmall();
    form.AText[1].Width = 0;
    typeKey(key::f2);
    expectOpen(2);
    form.TabTable.discard();
    EXPECT_EQ(firstItem(form), 2);
}

TEST_F(KeyboardWalk, TheFirstFieldIsBroughtIntoSight) {
    startSmall();
    form.P1.Move(-9000, -9000);
    typeKey(key::f2);
    EXPECT_GE(form.P1.Left + form.AText[1].Left, 0);
    EXPECT_GE(form.P1.Top + form.AText[1].Top, 0);
}

TEST_F(KeyboardWalk, DesignModeHasNoFirstField) {
    startSmall();
    clickText(1);
    typeKey(key::escape);
    EXPECT_TRUE(chooseMenu("Options>Show the Design Menu         Shift Ctrl  D"));
    ASSERT_TRUE(form.MShowShapes.Checked);
    typeKey(key::f2);
    typeKey(key::tab);
    EXPECT_FALSE(isEditing());
    EXPECT_FALSE(form.TabActive);
    EXPECT_FALSE(chooseMenu("View>Go to first field"));
    typeKey('A', shift::ctrl);
    typeKey(key::tab);
    EXPECT_FALSE(isEditing());
    typeKey(key::f2);
    expectOpen(1);
}

TEST_F(KeyboardWalk, AfterEscapeTabGoesOnFromTheTextAndShiftTabBack) {
    startSmall();
    clickText(1);
    typeKey(key::escape);
    EXPECT_FALSE(isEditing());
    typeKey(key::tab);
    expectOpen(2);
    EXPECT_TRUE(traced("  P1_KeyDown TabTo 2, from 1"));
    typeKey(key::escape);
    typeKey(key::tab);
    expectOnMark(1);
    clickText(3);
    typeKey(key::escape);
    typeKey(key::tab, shift::shift);
    expectOnMark(2);
}

TEST_F(KeyboardWalk, AfterEscapeATextThatWasClickedBesideAMarkIsTheLastField) {
    startSmall();
    clickMark(1);
    clickText(2);
    typeKey(key::escape);
    // That the mouse has left the mark is seen, and changes nothing.
    typeKey(key::space);
    EXPECT_FALSE(form.TabActive);
    EXPECT_TRUE(form.AMark[1].Visible);
    typeKey(key::tab, shift::shift);
    expectOpen(1);
    clickText(3);
    typeKey(key::escape);
    clickMark(1);
    typeKey(key::tab);
    expectOnMark(2);
}

TEST_F(KeyboardWalk, AfterEachStyleKeyTabGoesOnFromTheText) {
    startSmall();
    for (const char letter : {'B', 'I', 'L', 'G'}) {
        const int style = toolkit::code(letter);
        clickText(1);
        typeKey(style, shift::ctrl);
        EXPECT_FALSE(isEditing()) << style;
        typeKey(key::tab);
        expectOpen(2);
        clickText(2);
        typeKey(style, shift::ctrl);
        typeKey(key::tab, shift::shift);
        expectOpen(1);
    }
}

TEST_F(KeyboardWalk, AfterASaveTabGoesOnFromTextAndMark) {
    startSmall();
    clickText(1);
    typeText("North");
    answerName("Keys");
    typeKey('S', shift::ctrl);
    EXPECT_FALSE(isEditing());
    typeKey(key::tab);
    expectOpen(2);
    walkToMark(1);
    typeKey('S', shift::ctrl);
    EXPECT_FALSE(form.CardModified);
    typeKey(key::tab);
    expectOnMark(2);
}

TEST_F(KeyboardWalk, AfterAZoomTabGoesOnFromTheTextThatWasOpenOrLeft) {
    startSmall();
    clickText(1);
    typeText("North");
    EXPECT_TRUE(chooseMenu("View>Zoom In (Bigger)                   Ctrl +"));
    EXPECT_FALSE(isEditing());
    typeKey(key::tab);
    expectOpen(2);
    typeKey(key::escape);
    typeKey(key::subtract, shift::ctrl);
    typeKey(key::tab, shift::shift);
    expectOpen(1);
    EXPECT_EQ(form.AText[1].Tag, "North");
}

TEST_F(KeyboardWalk, AfterAZoomTabGoesOnFromTheMark) {
    startSmall();
    walkToMark(1);
    typeKey(key::add, shift::ctrl);
    EXPECT_FALSE(form.TabActive);
    typeKey(key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
    typeKey(key::tab);
    expectOnMark(2);
    typeKey(key::space);
    EXPECT_TRUE(form.AMark[2].Visible);
    typeKey(key::subtract, shift::ctrl);
    typeKey(key::tab, shift::shift);
    expectOnMark(1);
}

TEST_F(KeyboardWalk, AMarkWithoutASuccessorHasNoWayBackAfterAZoomEither) {
    startSmall("1,1001\r\n1001,1002\r\n", 1002);
    clickText(1);
    typeKey(key::tab);
    typeKey(key::tab);
    expectOnMark(2);
    typeKey(key::add, shift::ctrl);
    typeKey(key::tab);
    typeKey(key::tab, shift::shift);
    EXPECT_FALSE(form.TabActive);
    EXPECT_FALSE(isEditing());
}

TEST_F(KeyboardWalk, BeyondTheTableTheBoundErrorIsTracedAfterAZoomToo) {
    startSmall();
    announceError("Error in P1_KeyDown");
    clickMark(3);
    typeKey(key::add, shift::ctrl);
    typeKey(key::tab);
    EXPECT_TRUE(traced("Error in P1_KeyDown: #9, Subscript out of range"));
}

TEST_F(KeyboardWalk, TravelOfTheMouseEndsItForGood) {
    startSmall();
    enter(1, "North");
    clickMark(1);
    moveMouse(800 * pixel, 800 * pixel);
    typeKey(key::space);
    EXPECT_FALSE(form.TabActive);
    typeKey(key::tab);
    typeKey(key::tab, shift::shift);
    EXPECT_FALSE(isEditing());
    EXPECT_FALSE(form.TabActive);
}

TEST_F(KeyboardWalk, AnArrowThatTheCursorCannotFollowEndsItForGood) {
    startSmall();
    enter(1, "North");
    clickMark(1);
    toolkit::overrideScreen(
        {.width = 24000, .height = 24000, .taskBar = {0, 0, 1600, 1600}, .hasTaskBar = true});
    form.P1.Move(-3000, -3000);
    typeKey(key::up);
    ASSERT_FALSE(form.TabActive);
    typeKey(key::tab);
    EXPECT_FALSE(isEditing());
    EXPECT_FALSE(form.TabActive);
}

TEST_F(KeyboardWalk, AFrameShowsTheMarkWhereNoProgramMayMoveThePointer) {
    startSmall();
    pinPointer();
    clickText(2);
    EXPECT_FALSE(hasFrame());
    typeKey(key::tab);
    EXPECT_TRUE(isFramed(1));
    typeKey(key::space);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(isFramed(1));
    typeKey(key::tab);
    EXPECT_FALSE(isFramed(1));
    EXPECT_TRUE(isFramed(2));
    typeKey(key::tab);
    expectOpen(3);
    EXPECT_FALSE(hasFrame());
}

TEST_F(KeyboardWalk, TheFrameMovesAlongWithTheCardAndGoesWithTheWalk) {
    startSmall();
    pinPointer();
    walkToMark(1);
    form.P1.Move(-1500, -1500);
    typeKey(key::up);
    ASSERT_TRUE(form.TabActive);
    EXPECT_TRUE(isFramed(1));
    typeKey(key::add, shift::ctrl);
    EXPECT_FALSE(form.TabActive);
    EXPECT_FALSE(hasFrame());
}

TEST_F(KeyboardWalk, TheFrameGoesWhenThePlayerTakesTheMouse) {
    startSmall();
    pinPointer();
    walkToMark(1);
    ASSERT_TRUE(isFramed(1));
    moveMouse(800 * pixel, 800 * pixel);
    EXPECT_FALSE(hasFrame());
    clickMark(2);
    EXPECT_TRUE(form.TabActive);
    EXPECT_FALSE(hasFrame());
}

TEST_F(KeyboardWalk, WhereThePointerGoesAlongThereIsNoFrame) {
    startSmall();
    walkToMark(1);
    EXPECT_FALSE(hasFrame());
    typeKey(key::tab);
    EXPECT_FALSE(hasFrame());
}

TEST_F(KeyboardWalk, UnderAPanelThereIsNoFrame) {
    startSmall();
    pinPointer();
    walkToMark(1);
    answerChooser([&] {
        EXPECT_EQ(unseenMark(form), nullptr);
        typeKey(key::escape);
    });
    EXPECT_TRUE(chooseMenu("File>Save As..."));
    EXPECT_TRUE(isFramed(1));
}

TEST_F(KeyboardWalk, ANewCardHasNoLastField) {
    startSmall();
    clickText(1);
    typeKey(key::escape);
    EXPECT_TRUE(chooseMenu("File>New"));
    typeKey(key::tab);
    EXPECT_FALSE(isEditing());
    walkToMark(1);
    typeKey(key::add, shift::ctrl);
    EXPECT_TRUE(chooseMenu("File>New"));
    typeKey(key::tab);
    EXPECT_FALSE(form.TabActive);
}

} // namespace
} // namespace zev::test
