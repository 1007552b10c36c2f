// The way of a key: form, menu, control, character, control's own handling.
#include "fixture.h"

namespace window_test {
namespace {

using namespace toolkit;

class Key : public WindowTest {
  protected:
    /// What a key on the card brings, without the form's share.
    Log onCard(int keyCode, int shift = 0, std::string_view typed = {}) {
        log.clear();
        test::typeKey(keyCode, shift, typed);
        Log found;
        for (const std::string& line : log)
            if (line.starts_with("card.")) found.push_back(line.substr(5));
        return found;
    }
};

TEST_F(Key, FormComesFirstThenDownPressUpOfTheControl) {
    openBox("");
    test::typeKey('A');
    EXPECT_EQ(log,
              (Log{"form.KeyDown 65/0", "box.KeyDown 65/0", "box.KeyPress 97", "box.KeyUp 65/0"}));
    EXPECT_EQ(box.Text, "a");
}

TEST_F(Key, ConsumedByTheFormStillBringsKeyUp) {
    openBox("");
    form.KeyDown = [](KeyArguments& key) { key.KeyCode = 0; };
    test::typeKey('A');
    EXPECT_EQ(log, (Log{"box.KeyUp 65/0"}));
    EXPECT_EQ(box.Text, "");
}

TEST_F(Key, ConsumedByTheControlGivesNoCharacter) {
    openBox("");
    box.KeyDown = [](KeyArguments& key) { key.KeyCode = 0; };
    test::typeKey('A');
    EXPECT_EQ(log, (Log{"form.KeyDown 65/0", "box.KeyUp 65/0"}));
    EXPECT_EQ(box.Text, "");
}

TEST_F(Key, CharacterSetToZeroIsSwallowed) {
    openBox("");
    box.KeyPress = [](int& character) { character = 0; };
    test::typeKey('A');
    EXPECT_EQ(box.Text, "");
    EXPECT_EQ(log.back(), "box.KeyUp 65/0");
}

TEST_F(Key, TabIsAKeyButNoCharacter) {
    EXPECT_EQ(onCard(key::tab), (Log{"KeyDown 9/0", "KeyUp 9/0"}));
    EXPECT_EQ(onCard(key::tab, shift::shift), (Log{"KeyDown 9/1", "KeyUp 9/1"}));
    EXPECT_EQ(onCard(key::tab, shift::ctrl), (Log{"KeyDown 9/2", "KeyUp 9/2"}));
}

TEST_F(Key, TabInABoxStaysThere) {
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

TEST_F(Key, ControlLettersAreCharactersOneToTwentySix) {
    EXPECT_EQ(onCard('B', shift::ctrl)[1], "KeyPress 2");
    EXPECT_EQ(onCard('I', shift::ctrl)[1], "KeyPress 9");
    EXPECT_EQ(onCard('Z', shift::ctrl)[1], "KeyPress 26");
}

TEST_F(Key, ThirteenComesFromEnterOnly) {
    EXPECT_EQ(onCard(key::enter), (Log{"KeyDown 13/0", "KeyPress 13", "KeyUp 13/0"}));
    EXPECT_EQ(onCard('M', shift::ctrl), (Log{"KeyDown 77/2", "KeyUp 77/2"}));
}

TEST_F(Key, EscapeIsCharacter27) {
    EXPECT_EQ(onCard(key::escape), (Log{"KeyDown 27/0", "KeyPress 27", "KeyUp 27/0"}));
}

TEST_F(Key, ShiftMakesThePrintedCharacterLarge) {
    EXPECT_EQ(onCard('A', shift::shift), (Log{"KeyDown 65/1", "KeyPress 65", "KeyUp 65/1"}));
}

TEST_F(Key, CodesOfMainAndKeypadKeysDiffer) {
    EXPECT_EQ(onCard('0', shift::ctrl)[0], "KeyDown 48/2");
    EXPECT_EQ(onCard(96, shift::ctrl)[0], "KeyDown 96/2");
    EXPECT_EQ(onCard(key::add, shift::ctrl)[0], "KeyDown 107/2");
    EXPECT_EQ(onCard(key::subtract, shift::ctrl)[0], "KeyDown 109/2");
    EXPECT_EQ(onCard(key::plus, shift::ctrl)[0], "KeyDown 187/2");
    EXPECT_EQ(onCard(key::minus, shift::ctrl)[0], "KeyDown 189/2");
}

TEST_F(Key, NamedKeysHaveTheirCodes) {
    for (const int code : {key::pageUp, key::pageDown, key::end, key::home, key::left, key::up,
                           key::right, key::down, key::deleteKey, key::f1, key::f3, key::f8})
        EXPECT_EQ(onCard(code), (Log{"KeyDown " + std::to_string(code) + "/0",
                                     "KeyUp " + std::to_string(code) + "/0"}));
}

TEST_F(Key, CharacterOutsideTheCodePageIsAQuestionMark) {
    openBox("");
    test::typeText("\u0141");
    EXPECT_EQ(times("box.KeyPress 63"), 1);
}

TEST_F(Key, AccentedCharacterComesAsItsCode) {
    openBox("");
    test::typeText("\u00e9");
    EXPECT_EQ(times("box.KeyPress 233"), 1);
}

TEST_F(Key, RepetitionIsToldAndReleasesNothing) {
    card.KeyDown = [this](KeyArguments&) { note(isKeyRepeat() ? "repeated" : "pressed"); };
    test::pressKey('A');
    test::repeatKey('A');
    test::releaseKey('A');
    EXPECT_EQ(times("pressed"), 1);
    EXPECT_EQ(times("repeated"), 1);
    EXPECT_EQ(times("card.KeyUp 65/0"), 1);
    EXPECT_FALSE(isKeyRepeat());
}

TEST_F(Key, KeyReachesItsHandlersOnce) {
    openBox("");
    // No box takes Escape or Enter by itself; neither may climb to the card behind.
    test::typeKey(key::escape);
    test::typeKey(key::enter);
    EXPECT_EQ(times("form.KeyDown 27/0"), 1);
    EXPECT_EQ(times("form.KeyDown 13/0"), 1);
    EXPECT_EQ(times("card.KeyDown 27/0"), 0);
}

} // namespace
} // namespace window_test
