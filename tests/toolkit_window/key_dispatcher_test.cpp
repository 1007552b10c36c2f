// The way of a key: form, menu, control, character, control's own handling.
#include "fixture.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class KeyDispatcher : public WindowTest {};

TEST_F(KeyDispatcher, FormComesFirstThenDownPressUpOfTheControl) {
    openBox("");
    test::typeKey('A');
    EXPECT_EQ(log,
              (Log{"form.KeyDown 65/0", "box.KeyDown 65/0", "box.KeyPress 97", "box.KeyUp 65/0"}));
    EXPECT_EQ(box.Text, "a");
}

TEST_F(KeyDispatcher, ConsumedByTheFormStillBringsKeyUp) {
    openBox("");
    form.KeyDown = [](KeyArguments& key) { key.KeyCode = 0; };
    test::typeKey('A');
    EXPECT_EQ(log, (Log{"box.KeyUp 65/0"}));
    EXPECT_EQ(box.Text, "");
}

TEST_F(KeyDispatcher, ConsumedByTheControlGivesNoCharacter) {
    openBox("");
    box.KeyDown = [](KeyArguments& key) { key.KeyCode = 0; };
    test::typeKey('A');
    EXPECT_EQ(log, (Log{"form.KeyDown 65/0", "box.KeyUp 65/0"}));
    EXPECT_EQ(box.Text, "");
}

TEST_F(KeyDispatcher, CharacterSetToZeroIsSwallowed) {
    openBox("");
    box.KeyPress = [](int& character) { character = 0; };
    test::typeKey('A');
    EXPECT_EQ(box.Text, "");
    EXPECT_EQ(log.back(), "box.KeyUp 65/0");
}

TEST_F(KeyDispatcher, TabInABoxStaysThere) {
    openBox("abc");
    otherBox.Move(px(20), px(60), px(120), px(20));
    otherBox.Visible = true;
    test::typeKey(key::tab);
    test::typeKey(key::tab, shift::shift);
    EXPECT_TRUE(test::hasPlatformFocus(box));
    EXPECT_EQ(box.Text, "abc");
    EXPECT_EQ(times("box.KeyDown 9/0"), 1);
    EXPECT_EQ(times("box.KeyDown 9/1"), 1);
    EXPECT_EQ(times("box.LostFocus"), 0);
}

TEST_F(KeyDispatcher, RepetitionIsToldAndReleasesNothing) {
    card.KeyDown = [this](KeyArguments&) { note(isKeyRepeat() ? "repeated" : "pressed"); };
    test::pressKey('A');
    test::repeatKey('A');
    test::releaseKey('A');
    EXPECT_EQ(times("pressed"), 1);
    EXPECT_EQ(times("repeated"), 1);
    EXPECT_EQ(times("card.KeyUp 65/0"), 1);
    EXPECT_FALSE(isKeyRepeat());
}

TEST_F(KeyDispatcher, PressAtTheTimeOfTheReleaseBeforeItIsARepetition) {
    card.KeyDown = [this](KeyArguments&) { note(isKeyRepeat() ? "repeated" : "pressed"); };
    card.KeyUp = [this](KeyArguments&) { note(isKeyRepeat() ? "released again" : "released"); };
    test::pressKeyAt(1000, 'A');
    for (unsigned time = 1500; time < 1510; ++time) {
        test::releaseKeyAt(time, 'A');
        test::pressKeyAt(time, 'A');
    }
    test::releaseKeyAt(1600, 'A');
    EXPECT_EQ(times("pressed"), 1);
    EXPECT_EQ(times("repeated"), 10);
    EXPECT_EQ(times("released"), 1);
    EXPECT_EQ(times("released again"), 10);
    EXPECT_FALSE(isKeyRepeat());
}

TEST_F(KeyDispatcher, ToldAndUntoldRepetitionsOfOneHoldMix) {
    card.KeyDown = [this](KeyArguments&) { note(isKeyRepeat() ? "repeated" : "pressed"); };
    card.KeyUp = [this](KeyArguments&) { note(isKeyRepeat() ? "released again" : "released"); };
    test::pressKeyAt(1000, 'A');
    test::repeatKey('A');
    test::releaseKeyAt(1500, 'A');
    test::pressKeyAt(1500, 'A');
    test::repeatKey('A');
    test::releaseKeyAt(1600, 'A');
    EXPECT_EQ(times("pressed"), 1);
    EXPECT_EQ(times("repeated"), 3);
    EXPECT_EQ(times("released"), 1);
    EXPECT_EQ(times("released again"), 1);
}

TEST_F(KeyDispatcher, StrokesInAHurryAreNoRepetitions) {
    card.KeyDown = [this](KeyArguments&) { note(isKeyRepeat() ? "repeated" : "pressed"); };
    test::pressKeyAt(1000, 'A');
    test::releaseKeyAt(1001, 'A');
    test::pressKeyAt(1002, 'A');
    test::releaseKeyAt(1003, 'A');
    test::pressKeyAt(1003, 'B');
    test::pressKeyAt(1003, 'A');
    EXPECT_EQ(times("pressed"), 4);
}

TEST_F(KeyDispatcher, KeyReachesItsHandlersOnce) {
    openBox("");
    // No box takes Escape or Enter by itself; neither may climb to the card behind.
    test::typeKey(key::escape);
    test::typeKey(key::enter);
    EXPECT_EQ(times("form.KeyDown 27/0"), 1);
    EXPECT_EQ(times("form.KeyDown 13/0"), 1);
    EXPECT_EQ(times("card.KeyDown 27/0"), 0);
}

TEST_F(KeyDispatcher, NoShortcutOfThePlatformTakesAKeyButTheMenuBarsAccessKeys) {
    EXPECT_TRUE(test::isClaimed('Q', shift::ctrl));
    EXPECT_TRUE(test::isClaimed(key::f1, 0));
    EXPECT_TRUE(test::isClaimed(key::f4, shift::alt));
    EXPECT_TRUE(test::isClaimed(key::tab, shift::shift));
    EXPECT_FALSE(test::isClaimed('F', shift::alt));
    openBox("abc");
    EXPECT_TRUE(test::isClaimed('Z', shift::ctrl));
    EXPECT_FALSE(test::isClaimed('F', shift::alt));
}

} // namespace
} // namespace window_test
