// Buttons, modifiers and places as handlers see them.
#include "fixture.h"
#include "toolkit/testing/test_mouse.h"

namespace window_test {
namespace {

using namespace toolkit;

class MouseInput : public WindowTest {};

TEST_F(MouseInput, RightAndMiddleButtonClickToo) {
    place(marks[1], 10, 10, 20, 20);
    test::click(px(15), px(15), button::right);
    test::click(px(15), px(15), button::middle);
    EXPECT_EQ(times("mark1.Click"), 2);
    EXPECT_EQ(times("mark1.MouseDown B=2 S=0 X=5 Y=5"), 1);
    EXPECT_EQ(times("mark1.MouseUp B=4 S=0 X=5 Y=5"), 1);
}

TEST_F(MouseInput, ModifiersComeAsOneTwoFour) {
    for (const int held : {shift::shift, shift::ctrl, shift::alt, 7}) {
        log.clear();
        test::pressMouse(px(30), px(40), button::left, held);
        test::releaseMouse(px(30), px(40), button::left, held);
        ASSERT_FALSE(log.empty());
        EXPECT_EQ(log.back(), "card.Click");
        EXPECT_EQ(log[log.size() - 2], "card.MouseUp B=1 S=" + std::to_string(held) + " X=30 Y=40");
    }
}

TEST_F(MouseInput, MoveBringsTheSumOfTheButtonsHeld) {
    test::pressMouse(px(30), px(40), button::left);
    test::pressMouse(px(30), px(40), button::right);
    test::moveMouse(px(31), px(40), button::left + button::right);
    EXPECT_EQ(log.back(), "card.MouseMove B=3 S=0 X=31 Y=40");
    test::releaseMouse(px(31), px(40), button::left);
    test::moveMouse(px(32), px(40), button::right);
    EXPECT_EQ(log.back(), "card.MouseMove B=2 S=0 X=32 Y=40");
    test::releaseMouse(px(32), px(40), button::right);
}

TEST_F(MouseInput, PlacesAreRoundedDownToWholePixels) {
    test::pressMouse(px(30) + 14, px(40) + 14);
    EXPECT_EQ(log.back(), "card.MouseDown B=1 S=0 X=30 Y=40");
    test::releaseMouse(-1, -1);
    EXPECT_EQ(log.back(), "card.MouseUp B=1 S=0 X=-1 Y=-1");
}

} // namespace
} // namespace window_test
