#include "events/edit_keys.h"

#include "text/edit_test.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class EditKeys : public EditTest {
  protected:
    void openWith(std::string_view text) {
        clickText(1);
        typeText(text);
    }
};

TEST_F(EditKeys, EscKeepsTheChangesAndMarksTheCardAsModified) {
    startSmall();
    openWith("1NT");
    form.CardModified = false;
    typeKey(toolkit::key::escape);
    EXPECT_EQ(form.AText[1].Tag, "1NT");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(traced("CText_KeyPress"));
    EXPECT_TRUE(traced("xText_KeyPress 27"));
}

TEST_F(EditKeys, EscClosesTheFieldForgetsItAndDoesNotGoOn) {
    startSmall();
    openWith("1NT");
    typeKey(toolkit::key::escape);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(form.TIndex, 0);
    EXPECT_EQ(form.OrigIndex, 0);
    EXPECT_EQ(form.ClickIndex, 0);
    EXPECT_TRUE(hasPlatformFocus(form.P1));
}

TEST_F(EditKeys, FunctionKeysInsertTheFourSuits) {
    startSmall();
    clickText(1);
    for (int key = toolkit::key::f5; key <= toolkit::key::f8; ++key) typeKey(key);
    EXPECT_EQ(shownText(form.CText), "^c^d^h^s");
    EXPECT_EQ(form.AText[1].Caption, "^c^d^h^s");
    typeKey(toolkit::key::f8 + 1);
    typeKey(toolkit::key::f4);
    EXPECT_EQ(shownText(form.CText), "^c^d^h^s");
}

TEST_F(EditKeys, SuitGoesInAtTheCaretWhichEndsBehindIt) {
    startSmall();
    openWith("14");
    typeKey(toolkit::key::left);
    typeKey(toolkit::key::f5 + 2);
    EXPECT_EQ(shownText(form.CText), "1^h4");
    EXPECT_EQ(form.CText.SelStart, 3);
    EXPECT_EQ(form.CText.SelLength, 0);
}

TEST_F(EditKeys, SuitGoesInFrontOfASelectionWhichStays) {
    startSmall();
    openWith("1234");
    typeKey(toolkit::key::home);
    typeKey(toolkit::key::right);
    pressKey(toolkit::key::right, toolkit::shift::shift);
    pressKey(toolkit::key::right, toolkit::shift::shift);
    typeKey(toolkit::key::f5 + 2);
    EXPECT_EQ(shownText(form.CText), "1^h234");
    EXPECT_EQ(form.CText.SelStart, 3);
    EXPECT_EQ(form.CText.SelLength, 2);
}

TEST_F(EditKeys, HeldSuitKeyInsertsOneSuit) {
    startSmall();
    clickText(1);
    pressKey(toolkit::key::f5);
    for (int i = 0; i < 5; ++i) repeatKey(toolkit::key::f5);
    releaseKey(toolkit::key::f5);
    EXPECT_EQ(shownText(form.CText), "^c");
}

/// Some systems don't tell whether a press is a repetition.
class UntoldRepetition : public EditKeys {
  protected:
    static void hold(int key, int shift = 0) {
        pressKeyAt(1000, key, shift);
        for (unsigned time = 1500; time < 1509; ++time) {
            releaseKeyAt(time, key, shift);
            pressKeyAt(time, key, shift);
        }
        releaseKeyAt(1600, key, shift);
    }
};

TEST_F(UntoldRepetition, OfASuitKeyInsertsOneSuit) {
    startSmall();
    clickText(1);
    for (int key = toolkit::key::f5; key <= toolkit::key::f8; ++key) hold(key);
    EXPECT_EQ(shownText(form.CText), "^c^d^h^s");
    hold(toolkit::key::f5);
    EXPECT_EQ(shownText(form.CText), "^c^d^h^s^c");
}

TEST_F(UntoldRepetition, OfALetterTypesOn) {
    startSmall();
    clickText(1);
    hold('A');
    EXPECT_EQ(shownText(form.CText), std::string(10, 'a'));
    EXPECT_EQ(form.AText[1].Caption, std::string(10, 'a'));
}

TEST_F(UntoldRepetition, OfTabGoesOneFieldOn) {
    startSmall("1,2\r\n2,3\r\n3,4\r\n", 3);
    clickText(1);
    hold(toolkit::key::tab);
    EXPECT_EQ(form.TIndex, 2);
    hold(toolkit::key::tab);
    EXPECT_EQ(form.TIndex, 3);
    hold(toolkit::key::tab, toolkit::shift::shift);
    EXPECT_EQ(form.TIndex, 2);
}

TEST_F(UntoldRepetition, OfEnterGoesOneFieldOn) {
    startSmall("1,2\r\n2,3\r\n3,4\r\n", 3);
    clickText(1);
    hold(toolkit::key::enter);
    EXPECT_EQ(form.TIndex, 2);
}

TEST_F(UntoldRepetition, OfSpaceTurnsAMarkOnce) {
    startSmall();
    clickMark(1);
    hold(toolkit::key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
    hold(toolkit::key::space);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(UntoldRepetition, OfTabOnAMarkGoesOneMarkOn) {
    startSmall("1001,1002\r\n1002,1003\r\n", 1002);
    clickMark(1);
    hold(toolkit::key::tab);
    EXPECT_EQ(form.TabCode, 1002);
}

TEST_F(EditKeys, LabelBehindTheBoxFollowsTheTypingWithRawEscapes) {
    startSmall();
    openWith("4^h&");
    EXPECT_EQ(form.AText[1].Caption, "4^h&&");
    EXPECT_EQ(form.AText[1].Tag, "");
    EXPECT_EQ(form.SText.UBound(), 0);
    EXPECT_TRUE(traced("CText_KeyUp"));
}

TEST_F(EditKeys, TextShrinksWhileItIsTypedAndGrowsBack) {
    startSmall();
    clickText(4);
    const toolkit::FontSpec full = form.AText[4].Font;
    typeText("a long text");
    const toolkit::FontSpec small = form.AText[4].Font;
    EXPECT_EQ(small.Name, form.NarrowFontName);
    EXPECT_LT(small.Size, full.Size);
    EXPECT_EQ(form.CText.Font.Name, small.Name);
    EXPECT_EQ(form.CText.Font.Size, small.Size);
    for (int i = 0; i < 10; ++i) typeKey(toolkit::key::backspace);
    EXPECT_EQ(form.AText[4].Font, full);
    EXPECT_EQ(form.CText.Font.Size, full.Size);
}

TEST_F(EditKeys, FieldWithSymbolsIsModifiedByTheFirstKeyRelease) {
    startSmall();
    enter(1, "^h");
    form.CardModified = false;
    clickText(1);
    EXPECT_FALSE(form.CardModified);
    typeKey(toolkit::key::left);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(EditKeys, LettersOutsideTheCodePageBecomeBaseLettersAndSuitsEscapes) {
    startSmall();
    clickText(1);
    typeText("\xC4\x8D\xE2\x99\xA5\xC3\xA9"); // c with caron, heart, e with acute
    EXPECT_EQ(shownText(form.CText), "c^h\xE9");
    typeKey(toolkit::key::escape);
    EXPECT_EQ(form.AText[1].Tag, "c^h\xE9");
}

TEST_F(EditKeys, PastedSuitSignsBecomeEscapes) {
    startSmall();
    openWith("1");
    fillClipboard("\xE2\x99\xA0\xE2\x99\xA6\xE2\x99\xA3");
    typeKey('V', toolkit::shift::ctrl);
    EXPECT_EQ(shownText(form.CText), "1^s ^d ^c");
    EXPECT_EQ(form.AText[1].Caption, "1^s ^d ^c");
}

TEST_F(EditKeys, CtrlASelectsTheText) {
    startSmall();
    openWith("1NT");
    typeKey('A', toolkit::shift::ctrl);
    EXPECT_EQ(form.CText.SelStart, 0);
    EXPECT_EQ(form.CText.SelLength, 3);
    EXPECT_TRUE(isEditing());
}

TEST_F(EditKeys, CtrlMAndCtrlBracketAreNeitherEnterNorEsc) {
    startSmall();
    openWith("1NT");
    typeKey('M', toolkit::shift::ctrl);
    typeKey('[', toolkit::shift::ctrl);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(shownText(form.CText), "1NT");
}

TEST_F(EditKeys, BackwardSelectionKeepsItsDirectionAtTheRelease) {
    startSmall();
    openWith("1234");
    for (int i = 0; i < 3; ++i) typeKey(toolkit::key::left, toolkit::shift::shift);
    EXPECT_EQ(form.CText.SelStart, 1);
    EXPECT_EQ(form.CText.SelLength, 3);
}

TEST_F(EditKeys, ReleaseDoesNotDestroyWhatAnInputMethodComposes) {
    startSmall();
    openWith("1");
    compose("^", "");
    releaseKey(toolkit::key::left);
    compose("", "\xC3\xAA");
    releaseKey('E');
    EXPECT_EQ(form.AText[1].Caption, "1\xEA");
}

/// With some input methods the program has to end the composition.
TEST_F(EditKeys, WhatIsStillComposedStaysInItsField) {
    startSmall();
    enter(2, "two");
    openWith("one");
    compose("ab", "");
    clickText(2);
    EXPECT_EQ(shownText(form.CText), "two");
    typeKey(toolkit::key::end);
    toolkit::test::typeText("!");
    compose("cd", "");
    clickBareCard();
    clickText(1);
    EXPECT_EQ(shownText(form.CText), "oneab");
    EXPECT_EQ(form.AText[2].Tag, "two!cd");
}

TEST_F(EditKeys, WhatIsStillComposedIsSaved) {
    startSmall();
    openWith("1");
    compose("NT", "");
    answerName("Jones");
    EXPECT_TRUE(chooseMenu("File>Save"));
    EXPECT_NE(dataFileContent("Jones.zev").find("1,\"1NT\",0"), std::string::npos);
}

TEST_F(EditKeys, CardDoesNotGetTheKeysOfTheBox) {
    startSmall();
    const float left = form.P1.Left;
    openWith("12");
    typeKey(toolkit::key::left);
    EXPECT_EQ(form.CText.SelStart, 1);
    EXPECT_EQ(form.P1.Left, left);
    typeKey(toolkit::key::space);
    EXPECT_EQ(shownText(form.CText), "1 2");
}

TEST_F(EditKeys, LeftBoxHasTheSameKeys) {
    startSmall();
    form.AText[1].Alignment = toolkit::Alignment::Left;
    clickText(1);
    typeText("1");
    typeKey(toolkit::key::f5 + 3);
    EXPECT_EQ(shownText(form.LText), "1^s");
    typeKey(toolkit::key::escape);
    EXPECT_EQ(form.AText[1].Tag, "1^s");
    EXPECT_TRUE(traced("LText_GotFocus"));
    EXPECT_TRUE(traced("Ltext_KeyPress"));
    EXPECT_TRUE(traced("Ltext_KeyUp"));
}

TEST_F(EditKeys, FocusTraceTellsThePlaceWhileTracing) {
    startSmall();
    form.TraceOn = true;
    clickText(1);
    form.TraceOn = false;
    // The label is 300 pixels wide, 100 from the left and 300 from the top.
    EXPECT_NE(traceFile().find("xText_GotFocus (1), at 1500, 4500, 4500, "), std::string::npos);
    EXPECT_NE(traceFile().find(", centered=True"), std::string::npos);
}

TEST_F(EditKeys, FocusInDesignModeReadsOutTheField) {
    startSmall();
    form.TIndex = 1;
    form.MShowShapes.Checked = true;
    form.AText[1].Move(1500, 4500, 4500, 240);
    CText_GotFocus(form);
    EXPECT_EQ(form.MCoord.Caption, "1: (1500,4500) - (6000,4740)  [4500*240]");
}

TEST_F(EditKeys, ReleaseInDesignModeDoesNothing) {
    startSmall();
    clickText(1);
    form.CText.Text = "stray";
    form.MShowShapes.Checked = true;
    toolkit::KeyArguments key{'A', 0};
    CText_KeyUp(form, key);
    EXPECT_EQ(form.AText[1].Caption, "");
}

TEST_F(EditKeys, FailuresAreTracedAndTheKeyIsLost) {
    startSmall();
    announceError("Error in");
    form.TIndex = 99;
    toolkit::KeyArguments key{'A', 0};
    CText_KeyUp(form, key);
    EXPECT_TRUE(traced("Error in xText_KeyUp: #340, Control array element '99' doesn't exist"));
    int character = 2;
    CText_KeyPress(form, character);
    EXPECT_TRUE(traced("Error in xText_KeyPress: #340, Control array element '99' doesn't exist"));
    toolkit::MouseArguments press{toolkit::button::right, 0, 0, 0};
    CText_MouseDown(form, press);
    EXPECT_TRUE(traced("Error in CText_MouseDown: #340, Control array element '99' doesn't exist"));
    Ltext_MouseDown(form, press);
    EXPECT_TRUE(traced("Error in Ltext_MouseDown: #340, Control array element '99' doesn't exist"));
    form.MShowShapes.Checked = true;
    CText_GotFocus(form);
    EXPECT_TRUE(traced("Error in xText_GotFocus: #340, Control array element '99' doesn't exist"));
}

} // namespace
} // namespace zev::test
