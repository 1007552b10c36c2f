// Where the keys go, which events tell so, and what lies over what.
#include "fixture.h"
#include "toolkit/testing/test_boxes.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class WindowOrder : public WindowTest {};

TEST_F(WindowOrder, KeysGoToTheCardBeforeAnythingHasTheFocus) {
    test::typeKey('Q');
    EXPECT_EQ(log, (Log{"form.KeyDown 81/0", "card.KeyDown 81/0", "card.KeyPress 113",
                        "card.KeyUp 81/0"}));
}

TEST_F(WindowOrder, PressOnTheCardRunsLostFocusOfTheOpenBoxBeforeMouseDown) {
    openBox("abc");
    test::moveMouse(px(200), px(200));
    log.clear();
    test::pressMouse(px(200), px(200));
    EXPECT_EQ(log, (Log{"box.LostFocus", "card.GotFocus", "card.MouseDown B=1 S=0 X=200 Y=200"}));
    EXPECT_EQ(form.ActiveControl, &card);
    test::releaseMouse(px(200), px(200));
}

TEST_F(WindowOrder, PressOnAMarkTakesTheFocus) {
    openBox("abc");
    place(marks[1], 200, 200, 20, 20);
    test::pressMouse(px(205), px(205));
    EXPECT_EQ(log, (Log{"box.LostFocus", "card.GotFocus", "mark1.MouseDown B=1 S=0 X=5 Y=5"}));
    test::releaseMouse(px(205), px(205));
}

TEST_F(WindowOrder, PressOnAnotherLabelLeavesTheFocus) {
    openBox("abc");
    place(texts[1], 200, 200, 20, 20);
    place(stamp, 240, 200, 20, 20);
    test::click(px(205), px(205));
    test::click(px(245), px(205));
    EXPECT_EQ(times("box.LostFocus"), 0);
    EXPECT_EQ(form.ActiveControl, &box);
}

TEST_F(WindowOrder, PressInTheBoxThatHasTheFocusIsNoFocusEvent) {
    openBox("abc");
    test::click(px(30), px(30));
    EXPECT_EQ(times("box.LostFocus") + times("box.GotFocus"), 0);
}

TEST_F(WindowOrder, PressOnAListTakesTheFocus) {
    openBox("abc");
    list.Move(px(100), px(100), px(80), px(80));
    list.List = {"one", "two"};
    list.Visible = true;
    test::pressMouse(px(95), px(95));
    EXPECT_EQ(form.ActiveControl, &list);
    ASSERT_GE(log.size(), 2U);
    EXPECT_EQ(log[0], "box.LostFocus");
    EXPECT_EQ(log[1], "list.GotFocus");
    test::releaseMouse(px(95), px(95));
}

TEST_F(WindowOrder, PlatformFocusFollowsTheForms) {
    openBox("abc");
    EXPECT_TRUE(test::hasPlatformFocus(box));
    form.SetFocus(card);
    EXPECT_TRUE(test::hasPlatformFocus(card));
}

TEST_F(WindowOrder, FocusedBoxThatIsHiddenLeavesItToTheCardWithoutEvents) {
    openBox("abc");
    box.Visible = false;
    window->update();
    EXPECT_EQ(form.ActiveControl, &card);
    EXPECT_TRUE(test::hasPlatformFocus(card));
    EXPECT_EQ(log, Log{});
}

TEST_F(WindowOrder, CardThatWasHiddenForAMomentHasTheKeysAgain) {
    form.SetFocus(card);
    for (const bool shown : {false, true}) {
        card.Visible = shown;
        window->update();
        test::settle();
    }
    log.clear();
    test::typeKey(key::tab);
    EXPECT_TRUE(test::hasPlatformFocus(card));
    EXPECT_EQ(times("card.KeyDown 9/0"), 1);
}

TEST_F(WindowOrder, BoxOnTheScreenIsNoLostFocus) {
    openBox("abc");
    test::ShownBox seen;
    test::endNextBox(Answer::Ok, seen);
    tell("A text", Icon::None);
    EXPECT_EQ(seen.text, "A text");
    EXPECT_EQ(log, Log{});
    EXPECT_EQ(form.ActiveControl, &box);
}

TEST_F(WindowOrder, HandlerThatMovesTheFocusKeepsTheKeyFromTheOldBox) {
    openBox("abc");
    box.KeyDown = [this](KeyArguments&) { form.SetFocus(card); };
    test::typeKey('Q');
    EXPECT_EQ(box.Text, "abc");
    EXPECT_EQ(log.back(), "card.KeyUp 81/0");
}

TEST_F(WindowOrder, HigherInTheStackIsNearerToTheFront) {
    list.Move(px(100), px(100), px(80), px(80));
    list.List = {"one"};
    list.Visible = true;
    list.Stack = -1;
    test::click(px(95), px(95));
    EXPECT_EQ(times("card.Click"), 1);
    list.Stack = 1;
    test::click(px(95), px(95));
    EXPECT_EQ(times("card.Click"), 1);
    EXPECT_EQ(times("list.MouseDown B=1 S=0 X=5 Y=5"), 1);
}

} // namespace
} // namespace window_test
