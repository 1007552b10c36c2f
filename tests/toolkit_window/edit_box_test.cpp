// Text and selection of an edit box, by the player and by the program.
#include "fixture.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"

namespace window_test {
namespace {

using namespace toolkit;

class EditBox : public WindowTest {
  protected:
    void select(int start, int length) {
        box.SelStart = start;
        box.SelLength = length;
        window->update();
    }
};

TEST_F(EditBox, TypingChangesTextAndCaret) {
    openBox("ac");
    select(1, 0);
    test::typeText("b");
    EXPECT_EQ(box.Text, "abc");
    EXPECT_EQ(box.SelStart, 2);
    EXPECT_EQ(box.SelLength, 0);
}

TEST_F(EditBox, TypingReplacesTheSelection) {
    openBox("abcd");
    select(1, 2);
    test::typeText("X");
    EXPECT_EQ(box.Text, "aXd");
    EXPECT_EQ(box.SelStart, 2);
}

TEST_F(EditBox, AccentedCharacterIsOneByte) {
    openBox("");
    test::typeText("\u00e9");
    EXPECT_EQ(box.Text, "\xe9");
    EXPECT_EQ(test::shownText(box), "\xe9");
}

TEST_F(EditBox, SuitSignsBecomeEscapesAndTheCaretStandsBehind) {
    openBox("xy");
    select(1, 0);
    test::typeText("\u2660");
    EXPECT_EQ(box.Text, "x^sy");
    EXPECT_EQ(box.SelStart, 3);
    test::typeText("\u2663\u2666\u2665");
    EXPECT_EQ(box.Text, "x^s ^c ^d ^hy");
    EXPECT_EQ(box.SelStart, 12);
}

TEST_F(EditBox, CharacterOutsideTheCodePageBecomesItsBaseLetterOrAQuestionMark) {
    openBox("");
    test::typeText("\u0141\u4e2d");
    EXPECT_EQ(box.Text, "L?");
}

TEST_F(EditBox, PastedTextIsConvertedAsATypedOne) {
    openBox("[]");
    select(1, 0);
    test::fillClipboard("1\u2660\t\u0141\u00e9");
    test::typeKey('V', shift::ctrl);
    EXPECT_EQ(box.Text, "[1^s L\xe9]");
    EXPECT_EQ(box.SelStart, 7);
}

TEST_F(EditBox, ComposedTextIsConvertedAsATypedOne) {
    openBox("ab");
    select(1, 0);
    test::compose("", "\u2665\u0141");
    EXPECT_EQ(box.Text, "a^hLb");
}

TEST_F(EditBox, LetterThatAnInputMethodMakesOfACircumflexIsTheEscapeThatWasMeant) {
    openBox("");
    test::compose("^", "");
    test::compose("", "\u0125");
    EXPECT_EQ(box.Text, "^h");
    test::compose("", "d\u0302");
    EXPECT_EQ(box.Text, "^h ^d");
    EXPECT_EQ(box.SelStart, 5);
}

TEST_F(EditBox, SignPastedBesideAnEscapeIsKeptApart) {
    openBox("^c^s");
    select(2, 0);
    test::fillClipboard("\u2665");
    test::typeKey('V', shift::ctrl);
    EXPECT_EQ(box.Text, "^c ^h ^s");
}

TEST_F(EditBox, CutAndPasteByTheOtherKeysGiveOutSuitSignsAndKeepEscapes) {
    openBox("1^H^s");
    select(1, 4);
    test::typeKey(key::deleteKey, shift::shift);
    EXPECT_EQ(box.Text, "1");
    EXPECT_EQ(test::clipboardText(), "\u2665\u2660");
    test::typeKey(key::insert, shift::shift);
    EXPECT_EQ(box.Text, "1^H^s");
    select(1, 2);
    test::typeKey(key::insert, shift::ctrl);
    EXPECT_EQ(test::clipboardText(), "\u2665");
    EXPECT_EQ(box.Text, "1^H^s");
}

TEST_F(EditBox, PasteOfNothingLeavesTheSelection) {
    openBox("abc");
    select(1, 1);
    test::fillClipboard("");
    test::typeKey('V', shift::ctrl);
    EXPECT_EQ(box.Text, "abc");
    test::typeText("-");
    EXPECT_EQ(box.Text, "a-c");
}

TEST_F(EditBox, TextIsNotTouchedWhileAnInputMethodComposes) {
    openBox("ab");
    test::compose("n", "");
    window->update();
    EXPECT_EQ(test::shownText(box), "ab");
    test::compose("", "\u00f1");
    EXPECT_EQ(box.Text, "\xf1"
                        "ab");
}

TEST_F(EditBox, WhatIsComposedCountsAsTyped) {
    openBox("ab");
    select(1, 0);
    test::compose("n\u0142", "");
    test::releaseKey(key::left);
    EXPECT_EQ(box.Text, "anlb");
    test::compose("", "");
    test::releaseKey(key::left);
    EXPECT_EQ(box.Text, "ab");
}

TEST_F(EditBox, TextSetByTheProgramEndsAComposition) {
    openBox("ab");
    test::compose("n", "");
    box.Text = "other";
    EXPECT_EQ(test::shownText(box), "other");
    test::typeText("x");
    EXPECT_EQ(box.Text, "xother");
}

TEST_F(EditBox, TextSetByTheProgramIsShown) {
    openBox("abc");
    box.Text = "caf\xe9 ^s";
    EXPECT_EQ(test::shownText(box), "caf\xe9 ^s");
}

TEST_F(EditBox, TextSetInAHandlerIsThereForTheNextKey) {
    openBox("abc");
    box.KeyUp = [this](KeyArguments&) {
        box.Text = "12345";
        box.SelStart = 2;
    };
    test::typeText("x");
    box.KeyUp = {};
    test::typeText("-");
    EXPECT_EQ(box.Text, "12-345");
}

TEST_F(EditBox, ArrowMovesTheCaret) {
    openBox("abc");
    test::typeKey(key::right);
    EXPECT_EQ(box.SelStart, 1);
    test::typeKey(key::end);
    EXPECT_EQ(box.SelStart, 3);
    test::typeKey(key::home);
    EXPECT_EQ(box.SelStart, 0);
}

TEST_F(EditBox, SelectionGrownToTheLeftKeepsItsMovingEnd) {
    openBox("abcdef");
    select(4, 0);
    test::typeKey(key::left, shift::shift);
    test::typeKey(key::left, shift::shift);
    EXPECT_EQ(box.SelStart, 2);
    EXPECT_EQ(box.SelLength, 2);
    // Were the selection turned round, this would make it shorter.
    test::typeKey(key::left, shift::shift);
    EXPECT_EQ(box.SelStart, 1);
    EXPECT_EQ(box.SelLength, 3);
}

TEST_F(EditBox, SelectionSurvivesAHandlerThatSetsItAgain) {
    openBox("abcdef");
    select(1, 3);
    box.KeyUp = [this](KeyArguments&) {
        const auto [start, length] = std::pair(box.SelStart, box.SelLength);
        box.Text = std::string(box.Text);
        box.SelStart = start;
        box.SelLength = length;
    };
    test::releaseKey('X');
    EXPECT_EQ(box.SelStart, 1);
    EXPECT_EQ(box.SelLength, 3);
    test::typeText("-");
    EXPECT_EQ(box.Text, "a-ef");
}

TEST_F(EditBox, CaretBehindTheEndStandsAtTheEnd) {
    openBox("abc");
    select(99, 5);
    EXPECT_EQ(box.SelStart, 3);
    EXPECT_EQ(box.SelLength, 0);
    test::typeText("d");
    EXPECT_EQ(box.Text, "abcd");
}

TEST_F(EditBox, ItsOwnUndoNeverActs) {
    openBox("");
    test::typeText("abc");
    test::typeKey('Z', shift::ctrl);
    EXPECT_EQ(box.Text, "abc");
    EXPECT_EQ(times("box.KeyPress 26"), 1);
    test::typeKey('Z', shift::ctrl + shift::shift);
    test::typeKey('Y', shift::ctrl);
    EXPECT_EQ(box.Text, "abc");
}

TEST_F(EditBox, ChangeComesOnceForEachEditWithTheTextInPlace) {
    openBox("");
    Log seen;
    box.Change = [&] { seen.push_back(box.Text); };
    test::typeText("a\u2660");
    EXPECT_EQ(seen, (Log{"a", "a^s"}));
    box.Text = "set by the program";
    window->update();
    EXPECT_EQ(seen.size(), 2U);
}

TEST_F(EditBox, PressTellsThePlaceInTheBox) {
    openBox("abc");
    test::pressMouse(px(23), px(27));
    EXPECT_EQ(log.back(), "box.MouseDown B=1 S=0 X=3 Y=7");
    test::releaseMouse(px(23), px(27));
}

TEST_F(EditBox, PressPutsTheCaretThere) {
    openBox("abc");
    test::click(px(100), px(30));
    EXPECT_EQ(box.SelStart, 3);
}

TEST_F(EditBox, RightPressComesToTheHandlerAndLeavesTheCaret) {
    openBox("abc");
    test::click(px(100), px(30), button::right);
    EXPECT_EQ(times("box.MouseDown B=2 S=0 X=80 Y=10"), 1);
    EXPECT_EQ(box.SelStart, 0);
}

TEST_F(EditBox, SwallowedPressLeavesTheCaret) {
    openBox("abc");
    box.MouseDown = [](MouseArguments& mouse) { mouse.Button = 0; };
    test::click(px(100), px(30));
    EXPECT_EQ(box.SelStart, 0);
}

TEST_F(EditBox, DisabledCardDisablesItsBoxesForTheMouse) {
    openBox("abc");
    card.Enabled = false;
    test::click(px(100), px(30));
    EXPECT_EQ(log, Log{});
    EXPECT_EQ(box.SelStart, 0);
}

TEST_F(EditBox, WheelOverTheBoxNeverReachesTheForm) {
    openBox("abc");
    form.MouseWheel = [this](int, int, int, int) { note("form.MouseWheel"); };
    // The wheel is turned at the middle of the card.
    box.Move(px(150), px(140), px(120), px(20));
    test::turnWheel(-120);
    EXPECT_EQ(log, Log{});
    box.Move(px(150), px(200), px(120), px(20));
    test::turnWheel(-120);
    EXPECT_EQ(log, Log{"form.MouseWheel"});
}

TEST_F(EditBox, ShowsExactlyWhenItsValueSaysSo) {
    EXPECT_FALSE(test::isShown(box));
    openBox("abc");
    EXPECT_TRUE(test::isShown(box));
    box.Visible = false;
    EXPECT_FALSE(test::isShown(box));
}

TEST_F(EditBox, TextStandsWhereTheLabelsDoes) {
    const auto firstInk = [](const Bitmap& shown) {
        CursorPosition first{1000, 1000};
        for (int y = 20; y < 40; ++y)
            for (int x = 20; x < 140; ++x)
                if (redOf(shown.pixel(x, y).value_or(white)) < 128)
                    first = {std::min(first.x, x), std::min(first.y, y)};
        return first;
    };
    place(texts[1], 20, 20, 120, 20);
    texts[1].Caption = "HIH";
    texts[1].Font = {.Name = "Arial", .Size = 12};
    for (const Alignment alignment : {Alignment::Left, Alignment::Center}) {
        box.Visible = false;
        texts[1].Alignment = alignment;
        const CursorPosition ofLabel = firstInk(test::grabCard());
        box.Font = texts[1].Font;
        box.Alignment = alignment;
        openBox("HIH");
        form.SetFocus(card); // takes the caret out of the picture
        const CursorPosition ofBox = firstInk(test::grabCard());
        ASSERT_LT(ofLabel.x, 1000);
        EXPECT_NEAR(ofBox.x, ofLabel.x, 1);
        EXPECT_EQ(ofBox.y, ofLabel.y);
    }
}

} // namespace
} // namespace window_test
