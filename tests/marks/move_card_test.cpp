#include "marks/move_card.h"

#include <algorithm>

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

class MoveCard : public EditTest {
  protected:
    /// A card much larger than the form.
    void startLarge() {
        startSmall();
        resizeWindow(-static_cast<int>(form.Width / pixel) + 600,
                     -static_cast<int>(form.Height / pixel) + 500);
        ASSERT_LT(form.ScaleHeight(), form.P1.Height);
        ASSERT_LT(form.ScaleWidth(), form.P1.Width);
    }
    [[nodiscard]] float step() const { return form.P1.Height / 10; }
    [[nodiscard]] float farLeft() const { return form.ScaleWidth() - form.P1.Width; }
    [[nodiscard]] float farTop() const { return form.ScaleHeight() - form.P1.Height; }
    void expectAt(float left, float top) const {
        EXPECT_FLOAT_EQ(form.P1.Left, left);
        EXPECT_FLOAT_EQ(form.P1.Top, top);
    }
};

TEST_F(MoveCard, CornerKeysGoToTheFourCorners) {
    startLarge();
    typeKey(key::end);
    expectAt(0, farTop());
    typeKey(key::pageUp);
    expectAt(farLeft(), 0);
    typeKey(key::pageDown);
    expectAt(farLeft(), farTop());
    typeKey(key::home);
    expectAt(0, 0);
    typeKey(key::pageDown, shift::shift);
    expectAt(farLeft(), farTop());
}

TEST_F(MoveCard, ArrowsMoveTheViewByATenthOfTheCardsHeight) {
    startLarge();
    typeKey(key::down);
    expectAt(0, -step());
    typeKey(key::right);
    expectAt(-step(), -step());
    typeKey(key::left);
    expectAt(0, -step());
    typeKey(key::up);
    expectAt(0, 0);
}

TEST_F(MoveCard, ArrowsStopAtTheEdges) {
    startLarge();
    typeKey(key::up);
    typeKey(key::left);
    expectAt(0, 0);
    for (int i = 0; i < 12; ++i) {
        typeKey(key::down);
        typeKey(key::right);
    }
    expectAt(farLeft(), farTop());
}

TEST_F(MoveCard, CardSmallerThanTheFormIsPinnedToTheFarSide) {
    startSmall();
    form.P1.Width = form.ScaleWidth() - 3000;
    form.P1.Height = form.ScaleHeight() - 1500;
    typeKey(key::right);
    expectAt(3000, 1500);
    typeKey(key::right);
    EXPECT_EQ(form.P1.Left, 3000);
    // Beyond that side the place becomes 0.
    typeKey(key::left);
    EXPECT_EQ(form.P1.Left, 0);
}

TEST_F(MoveCard, ArrowWithAModifierIsNotTaken) {
    startLarge();
    typeKey(key::down, shift::ctrl);
    typeKey(key::down, shift::shift);
    expectAt(0, 0);
}

TEST_F(MoveCard, WheelGoesPastWhereTheKeysStop) {
    startLarge();
    turnWheel(-120);
    EXPECT_NEAR(form.P1.Top, -step(), 0.5F);
    for (int i = 0; i < 15; ++i) turnWheel(-120);
    EXPECT_EQ(form.P1.Top, -form.P1.Height);
    for (int i = 0; i < 40; ++i) turnWheel(120);
    EXPECT_EQ(form.P1.Top, form.ScaleHeight());
    EXPECT_EQ(form.P1.Left, 0);
}

TEST_F(MoveCard, WithCtrlTheWheelZoomsOneStepANotch) {
    startSmall();
    const auto level = form.ZoomLevel;
    turnWheel(120, shift::ctrl);
    EXPECT_EQ(form.ZoomLevel, level + 1);
    turnWheel(-240, shift::ctrl);
    EXPECT_EQ(form.ZoomLevel, level - 1);
    EXPECT_EQ(form.P1.Top, 0);
}

/// In a window that fills the screen, with the pointer in its middle.
class ZoomAtPointer : public MoveCard {
  protected:
    void startFilling() {
        startSmall();
        changeExtent(Extent::Maximised);
        while (form.P1.Width <= form.ScaleWidth() || form.P1.Height <= form.ScaleHeight())
            typeKey(key::add, shift::ctrl);
        x = toolkit::pixelsFromTwips(form.Left + form.FrameWidth + form.ScaleWidth() / 2);
        y = toolkit::pixelsFromTwips(form.Top + form.FrameHeight + form.ScaleHeight() / 2);
    }
    /// Where on the card the pointer is, in design pixels.
    [[nodiscard]] CardPoint pointed() const {
        const float scale = form.P1.Width / 1198;
        return {
            (static_cast<float>(x) * pixel - form.Left - form.FrameWidth - form.P1.Left) / scale,
            (static_cast<float>(y) * pixel - form.Top - form.FrameHeight - form.P1.Top) / scale};
    }
    int x = 0;
    int y = 0;
    void zoom(int rotation) { MouseWheel(form, shift::ctrl, rotation, x, y); }
};

TEST_F(ZoomAtPointer, ThePointUnderThePointerStays) {
    startFilling();
    form.P1.Move(-20 * pixel, -30 * pixel);
    const CardPoint before = pointed();
    zoom(120);
    EXPECT_NEAR(pointed().x, before.x, 1);
    EXPECT_NEAR(pointed().y, before.y, 1);
    zoom(120);
    zoom(-120);
    EXPECT_NEAR(pointed().x, before.x, 2);
    EXPECT_NEAR(pointed().y, before.y, 2);
}

TEST_F(ZoomAtPointer, ACardThatFillsTheFormLeavesNoGap) {
    startFilling();
    typeKey(key::add, shift::ctrl);
    x = toolkit::pixelsFromTwips(form.Left + form.FrameWidth);
    y = toolkit::pixelsFromTwips(form.Top + form.FrameHeight);
    form.P1.Move(farLeft(), farTop());
    zoom(-120);
    EXPECT_GE(form.P1.Left, farLeft());
    EXPECT_LE(form.P1.Left, 0);
    EXPECT_GE(form.P1.Top, farTop());
    EXPECT_LE(form.P1.Top, 0);
}

TEST_F(ZoomAtPointer, AtTheEndOfTheLadderTheCardStaysWhereItIs) {
    startFilling();
    for (int i = 0; i < 12; ++i) zoom(120);
    form.P1.Move(60 * pixel, 70 * pixel);
    zoom(120);
    expectAt(60 * pixel, 70 * pixel);
}

TEST_F(MoveCard, WheelTakesOneStepWhateverTheRotation) {
    startLarge();
    MouseWheel(form, 0, -1, 0, 0);
    EXPECT_NEAR(form.P1.Top, -step(), 0.5F);
    MouseWheel(form, 0, 960, 0, 0);
    EXPECT_NEAR(form.P1.Top, 0, 0.6F);
    MouseWheel(form, 0, 0, 0, 0);
    EXPECT_NEAR(form.P1.Top, -step(), 0.6F);
}

TEST_F(MoveCard, WheelOverTheHelpLeavesTheCardAlone) {
    startSmall();
    typeKey(key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    form.THelp.Move(0, 0, form.ScaleWidth(), form.ScaleHeight());
    for (int i = 0; i < 3; ++i) turnWheel(120);
    EXPECT_EQ(form.P1.Top, 0);
}

TEST_F(MoveCard, WheelNeedsAShownCardAndItsHook) {
    startLarge();
    form.WheelHooked = false;
    MouseWheel(form, 0, -120, 0, 0);
    form.WheelHooked = true;
    form.P1.Visible = false;
    MouseWheel(form, 0, -120, 0, 0);
    EXPECT_EQ(form.P1.Top, 0);
}

TEST_F(MoveCard, WheelLeavesTheRestOnAMarkAlone) {
    startSmall();
    clickMark(1);
    const auto cursor = toolkit::cursorPosition();
    turnWheel(-120);
    EXPECT_TRUE(form.TabActive);
    EXPECT_EQ(toolkit::cursorPosition().y, cursor.y);
}

TEST_F(MoveCard, CornerKeysLeaveTheRestOnAMarkAlone) {
    startLarge();
    clickMark(1);
    const auto cursor = toolkit::cursorPosition();
    typeKey(key::pageDown);
    EXPECT_TRUE(form.TabActive);
    EXPECT_EQ(toolkit::cursorPosition().y, cursor.y);
    typeKey(key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(MoveCard, CursorFollowsTheMarkThatTheKeyboardRestsOn) {
    startSmall();
    form.P1.Top = -600;
    clickMark(1);
    const auto cursor = toolkit::cursorPosition();
    const float before = form.P1.Top;
    typeKey(key::up);
    const int moved = toolkit::pixelsFromTwips(form.P1.Top - before);
    ASSERT_NE(moved, 0);
    EXPECT_NEAR(toolkit::cursorPosition().y, cursor.y + moved, 1);
    EXPECT_EQ(form.TabCursorY, toolkit::cursorPosition().y);
    EXPECT_EQ(form.TabCursorX, toolkit::cursorPosition().x);
    EXPECT_TRUE(form.TabActive);
    typeKey(key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(MoveCard, TaskBarAtTheBottomEndsTheRestAtOneArrow) {
    startSmall();
    toolkit::overrideScreen(
        {.width = 24000, .height = 24000, .taskBar = {0, 1560, 1600, 40}, .hasTaskBar = true});
    clickMark(1);
    typeKey(key::up);
    EXPECT_FALSE(form.TabActive);
}

TEST_F(MoveCard, TaskBarAtTheTopLetsTheCursorFollow) {
    startSmall();
    form.P1.Top = -600;
    toolkit::overrideScreen(
        {.width = 24000, .height = 24000, .taskBar = {0, 0, 1600, 40}, .hasTaskBar = true});
    clickMark(1);
    const int before = form.TabCursorY;
    typeKey(key::up);
    EXPECT_TRUE(form.TabActive);
    EXPECT_NE(form.TabCursorY, before);
}

TEST_F(MoveCard, CursorBelowAScreenLessTheHeightOfABarAtTheTopEndsTheRest) {
    startSmall();
    clickMark(1);
    const auto room = static_cast<float>(toolkit::cursorPosition().y + 30) * pixel;
    toolkit::overrideScreen(
        {.width = 24000, .height = room, .taskBar = {0, 0, 1600, 40}, .hasTaskBar = true});
    typeKey(key::up);
    EXPECT_FALSE(form.TabActive);
}

TEST_F(MoveCard, CursorThatWouldLeaveTheScreenEndsTheRest) {
    startLarge();
    clickMark(1);
    for (int i = 0; i < 3; ++i) typeKey(key::down);
    EXPECT_FALSE(form.TabActive);
}

constexpr const char* wayHome = "Home brings the card back";

class LostCard : public MoveCard {
  protected:
    void wheelAway() {
        for (int i = 0; i < 20; ++i) turnFormWheel(-120);
        ASSERT_EQ(form.P1.Top, -form.P1.Height);
    }
    /// The wheel over the form, wherever the card is.
    void turnFormWheel(int rotation) {
        MouseWheel(form, 0, rotation, 0, 0);
        typeKey(key::insert);
    }
};

TEST_F(LostCard, TheWayHomeIsToldAndHomeIsTheWay) {
    startLarge();
    EXPECT_EQ(form.Hint, "");
    wheelAway();
    EXPECT_EQ(form.Hint, wayHome);
    typeKey(key::home);
    expectAt(0, 0);
    EXPECT_EQ(form.Hint, "");
}

TEST_F(LostCard, IsLostOnEachSideOnceHardlyAnyOfItIsInSight) {
    startLarge();
    const float least = 20 * pixel;
    struct Edge {
        float left = 0;
        float top = 0;
        float outward = 0;
        float downward = 0;
    };
    for (const Edge edge :
         {Edge{form.ScaleWidth() - least, 0, pixel, 0},
          Edge{0, form.ScaleHeight() - least, 0, pixel}, Edge{least - form.P1.Width, 0, -pixel, 0},
          Edge{0, least - form.P1.Height, 0, -pixel}}) {
        form.P1.Move(edge.left, edge.top);
        typeKey(key::insert);
        EXPECT_EQ(form.Hint, "") << edge.left << ' ' << edge.top;
        form.P1.Move(edge.left + edge.outward, edge.top + edge.downward);
        typeKey(key::insert);
        EXPECT_EQ(form.Hint, wayHome) << edge.left << ' ' << edge.top;
    }
}

TEST_F(LostCard, WithATextOpenEscComesFirst) {
    startLarge();
    clickText(1);
    wheelAway();
    EXPECT_EQ(form.Hint, "Esc, then Home brings the card back");
    typeKey(key::escape, 0, "\x1b");
    EXPECT_EQ(form.Hint, wayHome);
}

TEST_F(LostCard, NothingIsToldWhereHomeDoesNothing) {
    startLarge();
    wheelAway();
    typeKey(key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    EXPECT_EQ(form.Hint, "");
    typeKey(key::escape, 0, "\x1b");
    EXPECT_EQ(form.Hint, wayHome);
    answerChooser([this] {
        typeKey(key::insert);
        EXPECT_EQ(form.Hint, "");
        typeKey(key::escape, 0, "\x1b");
    });
    EXPECT_TRUE(chooseMenu("File>Open..."));
}

TEST_F(LostCard, ASmallerWindowMayLoseItToo) {
    startLarge();
    form.P1.Left = 500 * pixel;
    typeKey(key::insert);
    EXPECT_EQ(form.Hint, "");
    resizeWindow(-100, 0);
    EXPECT_EQ(form.Hint, wayHome);
}

TEST_F(LostCard, TheHintIsNoPartOfTheCard) {
    startLarge();
    const toolkit::Bitmap before = grabCard();
    wheelAway();
    ASSERT_EQ(form.Hint, wayHome);
    const toolkit::Bitmap after = grabCard();
    ASSERT_EQ(after.height(), before.height());
    for (int y = 0; y < after.height(); ++y)
        ASSERT_TRUE(std::equal(after.row(y), after.row(y) + after.width(), before.row(y))) << y;
}

} // namespace
} // namespace zev::test
