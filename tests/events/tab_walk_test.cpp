#include "events/tab_walk.h"

#include "events/keys.h"
#include "text/edit_test.h"
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

class MarkWalk : public EditTest {
  protected:
    void moveFromTarget(int mark, int pixelsRight, int pixelsDown) {
        const auto target = targetOf(mark);
        moveMouse(target.x + static_cast<float>(pixelsRight) * pixel,
                  target.y + static_cast<float>(pixelsDown) * pixel);
    }
    /// Screen pixels of the point a third of the way into a mark.
    [[nodiscard]] toolkit::CursorPosition third(int mark) const {
        const toolkit::Label& label = form.AMark[mark];
        const float x = form.Width - form.ScaleWidth() + form.Left + form.P1.Left + label.Left +
                        label.Width / 3;
        const float y = form.Height - form.ScaleHeight() + form.Top + form.P1.Top + label.Top +
                        label.Height / 3;
        return {toolkit::pixelsFromTwips(x), toolkit::pixelsFromTwips(y)};
    }
};

TEST_F(MarkWalk, SpaceTogglesTheClickedMarkAgainAndAgain) {
    startSmall();
    clickMark(1);
    form.CardModified = false;
    typeKey(key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.CardModified);
    typeKey(key::space);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(form.TabActive);
}

TEST_F(MarkWalk, HeldSpaceTogglesOnce) {
    startSmall();
    clickMark(1);
    pressKey(key::space);
    for (int i = 0; i < 3; ++i) repeatKey(key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(MarkWalk, SpaceStillTogglesAfterFourPixelsOfMouseTravel) {
    startSmall();
    clickMark(1);
    moveFromTarget(1, 4, -4);
    typeKey(key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.TabActive);
}

TEST_F(MarkWalk, FivePixelsOfMouseTravelEndTheKeyboardsRestAtTheNextSpace) {
    startSmall();
    clickMark(1);
    moveFromTarget(1, 5, 0);
    typeKey(key::space);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.TabActive);
    moveFromTarget(1, 0, 0);
    typeKey(key::space);
    typeKey(key::tab);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.TabCode, 1001);
    clickMark(1);
    moveFromTarget(1, 0, -5);
    typeKey(key::space);
    EXPECT_FALSE(form.TabActive);
}

TEST_F(MarkWalk, BeforeAnyClickTabAndSpaceDoNothing) {
    startSmall();
    typeKey(key::tab);
    typeKey(key::space);
    EXPECT_FALSE(form.TabActive);
    EXPECT_FALSE(isEditing());
    EXPECT_FALSE(form.CardModified);
    EXPECT_TRUE(hasPlatformFocus(form.P1));
}

TEST_F(MarkWalk, TabJumpsAThirdOfTheWayIntoTheNextMarkWhereSpaceTogglesIt) {
    startSmall();
    clickMark(1);
    const auto from = toolkit::cursorPosition();
    form.Trace.clear();
    typeKey(key::tab);
    const auto target = third(2);
    EXPECT_EQ(toolkit::cursorPosition().x, target.x);
    EXPECT_EQ(toolkit::cursorPosition().y, target.y);
    EXPECT_EQ(form.TabCursorX, target.x);
    EXPECT_EQ(form.TabCursorY, target.y);
    EXPECT_EQ(form.TabCode, 1002);
    EXPECT_FALSE(form.AMark[2].Visible);
    const std::string cursor = std::to_string(from.x) + ", " + std::to_string(from.y);
    EXPECT_TRUE(traced("  P1_KeyDown TabTo 1001, 1002, Cursor: " + cursor + " | " + cursor));
    EXPECT_TRUE(traced("CheckOnScreen 1002"));
    EXPECT_TRUE(traced("  TabToMark (1002) Cursor at " + std::to_string(target.x) + ", " +
                       std::to_string(target.y)));
    EXPECT_TRUE(traced("FlashFocus 1002"));
    typeKey(key::space);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(MarkWalk, TabGoesOnWhereNoProgramMayMoveThePointer) {
    startSmall("1001,1002\r\n1002,1003\r\n1003,4\r\n", 1003);
    toolkit::overrideScreen({.width = 24000, .height = 24000, .pointerStays = true});
    clickMark(1);
    for (const int mark : {2, 3}) {
        typeKey(key::tab);
        typeKey(key::space);
        EXPECT_TRUE(form.AMark[mark].Visible) << mark;
    }
    typeKey(key::tab);
    EXPECT_EQ(form.TIndex, 4);
}

TEST_F(MarkWalk, TabToAMarkTracesItsPlace) {
    startSmall();
    form.AMark[2].Move(3000, 1500, 300, 375);
    clickMark(1);
    typeKey(key::tab);
    EXPECT_TRUE(traced("TabToMark (1002) at 3000, 1500, 300, 375"));
}

TEST_F(MarkWalk, TabOntoATextOpensItAndEndsTheRestOnMarks) {
    startSmall();
    clickMark(2);
    duringWait = [&](int) { EXPECT_FALSE(form.TabActive); };
    typeKey(key::tab);
    EXPECT_EQ(form.TIndex, 3);
    EXPECT_TRUE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    EXPECT_FALSE(form.TabActive);
    EXPECT_TRUE(traced("FlashFocus 3"));
}

TEST_F(MarkWalk, TabFromTheLastMarkDoesNothingInEitherDirection) {
    startSmall("1001,1002\r\n1002,1001\r\n", 1003);
    form.TabTable.set(1002, 0);
    clickMark(2);
    typeKey(key::tab);
    typeKey(key::tab, shift::shift);
    EXPECT_EQ(form.TabCode, 1002);
    EXPECT_TRUE(form.TabActive);
    EXPECT_TRUE(hasPlatformFocus(form.P1));
}

TEST_F(MarkWalk, AnyModifierWalksBackward) {
    startSmall();
    for (const int held : {shift::shift, shift::ctrl}) {
        clickMark(2);
        typeKey(key::tab, held);
        EXPECT_EQ(form.TabCode, 1001) << held;
    }
}

TEST_F(MarkWalk, AltWalksBackwardWhereItReachesTheCard) {
    startSmall();
    clickMark(2);
    toolkit::KeyArguments pressed{key::tab, shift::alt};
    P1_KeyDown(form, pressed);
    EXPECT_EQ(form.TabCode, 1001);
}

TEST_F(MarkWalk, WalksOnToATextThatWasDraggedOffTheCard) {
    startSmall();
    form.AText[3].Move(-3000, 7500);
    clickMark(2);
    typeKey(key::tab);
    EXPECT_GE(form.FrameWidth + form.Left + form.P1.Left + form.AText[3].Left, form.Left);
    EXPECT_TRUE(isEditing());
    typeText("East");
    typeKey(key::escape);
    EXPECT_EQ(form.AText[3].Tag, "East");
}

TEST_F(MarkWalk, BackwardFromAMarkReachesATextToo) {
    startSmall();
    clickMark(1);
    typeKey(key::tab, shift::shift);
    EXPECT_EQ(form.TIndex, 2);
    EXPECT_TRUE(isEditing());
    EXPECT_FALSE(form.TabActive);
}

TEST_F(MarkWalk, LowerOfTwoPredecessorsWinsAndNoneIsNoStep) {
    startSmall("1001,1003\r\n1002,1003\r\n1003,1002\r\n", 1003);
    clickMark(3);
    typeKey(key::tab, shift::shift);
    EXPECT_EQ(form.TabCode, 1001);
    typeKey(key::tab, shift::shift);
    EXPECT_EQ(form.TabCode, 1001);
}

TEST_F(MarkWalk, MouseTravelMakesTabWaitUntilTheMouseIsBack) {
    startSmall();
    clickMark(1);
    moveFromTarget(1, 5, 0);
    typeKey(key::tab);
    EXPECT_EQ(form.TabCode, 1001);
    EXPECT_TRUE(form.TabActive);
    moveFromTarget(1, 0, 0);
    typeKey(key::tab);
    EXPECT_EQ(form.TabCode, 1002);
    moveMouse(800 * pixel, 800 * pixel);
    typeKey(key::tab);
    EXPECT_TRUE(form.TabActive);
    typeKey(key::space);
    EXPECT_FALSE(form.TabActive);
}

TEST_F(MarkWalk, HeldTabGoesOneStep) {
    startSmall("1001,1002\r\n1002,1003\r\n1003,1001\r\n", 1003);
    clickMark(1);
    pressKey(key::tab);
    repeatKey(key::tab);
    EXPECT_EQ(form.TabCode, 1002);
}

TEST_F(MarkWalk, BeyondTheTableTheBoundErrorIsTraced) {
    startSmall();
    announceError("Error in P1_KeyDown");
    clickMark(3);
    moveFromTarget(3, 9, 9);
    typeKey(key::tab);
    EXPECT_TRUE(traced("Error in P1_KeyDown: #9, Subscript out of range"));
    EXPECT_EQ(form.TabCode, 1003);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(MarkWalk, SpaceOnAMarkThatIsGoneIsTraced) {
    startSmall();
    announceError("Error in P1_KeyDown");
    clickMark(3);
    form.TabCode = 1099;
    typeKey(key::space);
    EXPECT_TRUE(traced("Error in P1_KeyDown: #340, Control array element '99' doesn't exist"));
}

TEST_F(MarkWalk, StepToAMarkThatDoesNotExistIsTraced) {
    startSmall();
    announceError("Error in");
    TabToMark(form, 1099);
    EXPECT_TRUE(traced("Error in TabToMark: #340, Control array element '99' doesn't exist"));
}

} // namespace
} // namespace zev::test
