// What a press, a move and a release send to the card and its labels.
#include "fixture.h"
#include "toolkit/testing/test_mouse.h"

namespace window_test {
namespace {

using namespace toolkit;

class CardMouse : public WindowTest {};

TEST_F(CardMouse, ClickOnTheCardComesAsMoveDownUpClick) {
    test::click(px(30), px(40));
    EXPECT_EQ(log, (Log{"card.MouseMove B=0 S=0 X=30 Y=40", "card.GotFocus",
                        "card.MouseDown B=1 S=0 X=30 Y=40", "card.MouseUp B=1 S=0 X=30 Y=40",
                        "card.Click"}));
}

TEST_F(CardMouse, ClickOnALabelGoesToTheLabelWithItsOwnCoordinates) {
    place(texts[2], 100, 50, 40, 20);
    test::click(px(110), px(55));
    EXPECT_EQ(log, (Log{"text2.MouseMove B=0 S=0 X=10 Y=5", "text2.MouseDown B=1 S=0 X=10 Y=5",
                        "text2.MouseUp B=1 S=0 X=10 Y=5", "text2.Click"}));
}

TEST_F(CardMouse, SecondPressOfADoubleClickIsAPressAndAClick) {
    place(marks[1], 10, 10, 20, 20);
    test::doubleClick(px(15), px(15));
    EXPECT_EQ(times("mark1.MouseDown B=1 S=0 X=5 Y=5"), 2);
    EXPECT_EQ(times("mark1.Click"), 2);
}

TEST_F(CardMouse, PressOnTheCardIsPrecededByAMoveThere) {
    test::pressMouse(px(30), px(40));
    test::releaseMouse(px(30), px(40));
    ASSERT_GE(log.size(), 1U);
    EXPECT_EQ(log.front(), "card.MouseMove B=0 S=0 X=30 Y=40");
}

TEST_F(CardMouse, NoMovePrecedesAPressWhereThePointerRests) {
    test::moveMouse(px(30), px(40));
    log.clear();
    test::pressMouse(px(30), px(40));
    test::releaseMouse(px(30), px(40));
    EXPECT_EQ(times("card.MouseMove B=0 S=0 X=30 Y=40"), 0);
}

TEST_F(CardMouse, MovePrecedesTheNextPressAtTheSamePlace) {
    test::click(px(30), px(40));
    log.clear();
    test::pressMouse(px(30), px(40), button::right);
    test::releaseMouse(px(30), px(40), button::right);
    EXPECT_EQ(log.front(), "card.MouseMove B=0 S=0 X=30 Y=40");
}

TEST_F(CardMouse, MovePrecedesAPressWhereADragEnded) {
    test::pressMouse(px(30), px(40));
    test::moveMouse(px(50), px(40), button::left);
    test::releaseMouse(px(50), px(40));
    log.clear();
    test::pressMouse(px(50), px(40));
    test::releaseMouse(px(50), px(40));
    EXPECT_EQ(log.front(), "card.MouseMove B=0 S=0 X=50 Y=40");
}

TEST_F(CardMouse, MovePrecedesAPressAfterTheLabelUnderThePointerWasHidden) {
    place(marks[1], 10, 10, 20, 20);
    test::click(px(15), px(15));
    marks[1].Visible = false;
    log.clear();
    test::pressMouse(px(15), px(15));
    test::releaseMouse(px(15), px(15));
    EXPECT_EQ(log.front(), "card.MouseMove B=0 S=0 X=15 Y=15");
}

TEST_F(CardMouse, MovePrecedesAPressAfterTheCardMovedUnderThePointer) {
    test::moveMouse(px(30), px(40));
    card.Left -= px(7);
    log.clear();
    test::pressMouse(px(37), px(40));
    test::releaseMouse(px(37), px(40));
    EXPECT_EQ(log.front(), "card.MouseMove B=0 S=0 X=37 Y=40");
}

TEST_F(CardMouse, LabelThatWasPressedKeepsTheMovesAndTheRelease) {
    place(texts[1], 100, 50, 40, 20);
    test::pressMouse(px(110), px(55));
    test::moveMouse(px(10), px(5), button::left);
    EXPECT_EQ(log.back(), "text1.MouseMove B=1 S=0 X=-90 Y=-45");
    test::releaseMouse(px(10), px(5));
    EXPECT_EQ(log.back(), "text1.MouseUp B=1 S=0 X=-90 Y=-45");
}

TEST_F(CardMouse, MovesOfADraggedLabelAreMeasuredFromWhereItIsNow) {
    place(texts[1], 100, 50, 40, 20);
    test::pressMouse(px(110), px(55));
    texts[1].Left += px(30);
    test::moveMouse(px(140), px(55), button::left);
    EXPECT_EQ(log.back(), "text1.MouseMove B=1 S=0 X=10 Y=5");
    test::releaseMouse(px(140), px(55));
}

TEST_F(CardMouse, DragOfTheCardKeepsTheGrabPointUnderThePointer) {
    card.MouseMove = [this](MouseArguments& mouse) {
        note(text(mouse));
        if (mouse.Button == button::left) card.Left += mouse.X - px(30);
    };
    test::pressMouse(px(30), px(40));
    // The pointer goes 5 pixels to the right on the screen, twice; the card follows.
    test::moveMouse(px(35), px(40), button::left);
    EXPECT_EQ(log.back(), "B=1 S=0 X=35 Y=40");
    EXPECT_EQ(card.Left, px(15));
    test::moveMouse(px(35), px(40), button::left);
    EXPECT_EQ(log.back(), "B=1 S=0 X=35 Y=40");
    EXPECT_EQ(card.Left, px(20));
    test::releaseMouse(px(30), px(40));
}

TEST_F(CardMouse, ReleaseOutsideTheLabelIsNoClick) {
    place(texts[1], 100, 50, 40, 20);
    test::pressMouse(px(110), px(55));
    test::releaseMouse(px(140), px(55));
    EXPECT_EQ(log.back(), "text1.MouseUp B=1 S=0 X=40 Y=5");
}

TEST_F(CardMouse, ReleaseOverALabelStillClicksThePressedCard) {
    place(texts[1], 100, 50, 40, 20);
    test::pressMouse(px(30), px(40));
    test::releaseMouse(px(110), px(55));
    EXPECT_EQ(log.back(), "card.Click");
}

TEST_F(CardMouse, ReleaseOutsideTheCardIsNoClick) {
    test::pressMouse(px(30), px(40));
    test::releaseMouse(px(-1), px(40));
    EXPECT_EQ(log.back(), "card.MouseUp B=1 S=0 X=-1 Y=40");
    test::pressMouse(px(30), px(40));
    test::releaseMouse(px(400), px(40));
    EXPECT_EQ(log.back(), "card.MouseUp B=1 S=0 X=400 Y=40");
}

TEST_F(CardMouse, LabelHiddenWhilePressedIsNotClicked) {
    place(marks[1], 10, 10, 20, 20);
    test::pressMouse(px(15), px(15));
    marks[1].Visible = false;
    test::releaseMouse(px(15), px(15));
    EXPECT_EQ(log.back(), "mark1.MouseUp B=1 S=0 X=5 Y=5");
}

TEST_F(CardMouse, LabelUnloadedWhilePressedGetsNothingMore) {
    place(marks[3], 10, 10, 20, 20);
    test::pressMouse(px(15), px(15));
    log.clear();
    marks.UnloadAbove(2);
    test::moveMouse(px(16), px(15), button::left);
    test::releaseMouse(px(16), px(15));
    EXPECT_EQ(log, Log{});
}

TEST_F(CardMouse, PressWhoseReleaseNeverCameIsForgottenAtTheNextMove) {
    place(texts[1], 100, 50, 40, 20);
    place(marks[1], 10, 10, 20, 20);
    test::pressMouse(px(110), px(55));
    // A box or pop-up took the release.
    test::moveMouse(px(15), px(15));
    EXPECT_EQ(log.back(), "mark1.MouseMove B=0 S=0 X=5 Y=5");
    test::click(px(15), px(15));
    EXPECT_EQ(log.back(), "mark1.Click");
    EXPECT_EQ(times("text1.Click"), 0);
}

TEST_F(CardMouse, SingleLabelSwallowsThePress) {
    place(stamp, 10, 10, 20, 20);
    test::click(px(15), px(15));
    EXPECT_EQ(log, Log{});
}

TEST_F(CardMouse, DisabledCardGetsNothingAndNeitherDoItsLabels) {
    place(marks[1], 10, 10, 20, 20);
    card.Enabled = false;
    test::click(px(15), px(15));
    test::click(px(100), px(100));
    EXPECT_EQ(log, Log{});
}

} // namespace
} // namespace window_test
