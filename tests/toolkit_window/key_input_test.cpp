// Codes and characters of keys.
#include "fixture.h"
#include "toolkit/testing/test_keys.h"

namespace window_test {
namespace {

using namespace toolkit;

class KeyInput : public WindowTest {
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

TEST_F(KeyInput, TabIsAKeyButNoCharacter) {
    EXPECT_EQ(onCard(key::tab), (Log{"KeyDown 9/0", "KeyUp 9/0"}));
    EXPECT_EQ(onCard(key::tab, shift::shift), (Log{"KeyDown 9/1", "KeyUp 9/1"}));
    EXPECT_EQ(onCard(key::tab, shift::ctrl), (Log{"KeyDown 9/2", "KeyUp 9/2"}));
}

TEST_F(KeyInput, AtThePlaceOfZeroAnAccentedLetterIsTheZero) {
    test::pressAtPlaceOfZero("\u00E0", shift::ctrl);
    EXPECT_EQ(log.at(1), "card.KeyDown 48/2");
    log.clear();
    test::pressAtPlaceOfZero("9", shift::ctrl);
    EXPECT_EQ(log.at(1), "card.KeyDown 57/2");
}

TEST_F(KeyInput, MenuKeyHasACodeAndNoCharacter) {
    EXPECT_EQ(onCard(key::menu), (Log{"KeyDown 93/0", "KeyUp 93/0"}));
    EXPECT_EQ(onCard(key::f10, shift::shift), (Log{"KeyDown 121/1", "KeyUp 121/1"}));
}

TEST_F(KeyInput, ControlLettersAreCharactersOneToTwentySix) {
    EXPECT_EQ(onCard('B', shift::ctrl)[1], "KeyPress 2");
    EXPECT_EQ(onCard('I', shift::ctrl)[1], "KeyPress 9");
    EXPECT_EQ(onCard('Z', shift::ctrl)[1], "KeyPress 26");
}

TEST_F(KeyInput, ThirteenComesFromEnterOnly) {
    EXPECT_EQ(onCard(key::enter), (Log{"KeyDown 13/0", "KeyPress 13", "KeyUp 13/0"}));
    EXPECT_EQ(onCard('M', shift::ctrl), (Log{"KeyDown 77/2", "KeyUp 77/2"}));
}

TEST_F(KeyInput, EscapeIsCharacter27) {
    EXPECT_EQ(onCard(key::escape), (Log{"KeyDown 27/0", "KeyPress 27", "KeyUp 27/0"}));
}

TEST_F(KeyInput, ShiftMakesThePrintedCharacterLarge) {
    EXPECT_EQ(onCard('A', shift::shift), (Log{"KeyDown 65/1", "KeyPress 65", "KeyUp 65/1"}));
}

TEST_F(KeyInput, CodesOfMainAndKeypadKeysDiffer) {
    EXPECT_EQ(onCard('0', shift::ctrl)[0], "KeyDown 48/2");
    EXPECT_EQ(onCard(96, shift::ctrl)[0], "KeyDown 96/2");
    EXPECT_EQ(onCard(key::add, shift::ctrl)[0], "KeyDown 107/2");
    EXPECT_EQ(onCard(key::subtract, shift::ctrl)[0], "KeyDown 109/2");
    EXPECT_EQ(onCard(key::plus, shift::ctrl)[0], "KeyDown 187/2");
    EXPECT_EQ(onCard(key::minus, shift::ctrl)[0], "KeyDown 189/2");
}

TEST_F(KeyInput, NamedKeysHaveTheirCodes) {
    for (const int code : {key::pageUp, key::pageDown, key::end, key::home, key::left, key::up,
                           key::right, key::down, key::deleteKey, key::f1, key::f3, key::f8})
        EXPECT_EQ(onCard(code), (Log{"KeyDown " + std::to_string(code) + "/0",
                                     "KeyUp " + std::to_string(code) + "/0"}));
}

TEST_F(KeyInput, AKeyThatNoHandlerKnowsBringsItsCharacterOnly) {
    openBox("");
    test::typeKey(';', 0, ";");
    EXPECT_EQ(times("box.KeyDown 255/0"), 1);
    EXPECT_EQ(times("box.KeyPress 59"), 1);
    EXPECT_EQ(box.Text, ";");
}

TEST_F(KeyInput, CharacterOutsideTheCodePageIsItsBaseLetterOrAQuestionMark) {
    openBox("");
    test::typeText("\u0141\u4e2d");
    EXPECT_EQ(times("box.KeyPress 76"), 1);
    EXPECT_EQ(times("box.KeyPress 63"), 1);
}

TEST_F(KeyInput, AccentedCharacterComesAsItsCode) {
    openBox("");
    test::typeText("\u00e9");
    EXPECT_EQ(times("box.KeyPress 233"), 1);
}

} // namespace
} // namespace window_test
