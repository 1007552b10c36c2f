// Copy, cut and paste in a field: the private copy, and what goes to and comes from other programs.
#include "text/edit_test.h"
#include "text/styles.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class ClipText : public EditTest {
  protected:
    void openWith(std::string_view text) {
        clickText(1);
        typeText(text);
    }
    static void ctrl(char letter) { typeKey(letter, toolkit::shift::ctrl); }
    static void shiftLeft(int times) {
        for (int i = 0; i < times; ++i) typeKey(toolkit::key::left, toolkit::shift::shift);
    }
    /// Types the text into field 1, copies it and opens field 2.
    void copyToNext(std::string_view text) {
        openWith(text);
        ctrl('C');
        clickText(2);
    }
    /// Right-clicks the field and chooses a row, if it can be chosen.
    bool chooseOf(int field, std::size_t row) {
        bool enabled = false;
        answerPopup([&](std::span<const toolkit::PopupRow> rows) {
            enabled = rows[row].item->Enabled;
            if (enabled) rows[row].Click();
        });
        clickText(field, toolkit::button::right);
        return enabled;
    }
};

TEST_F(ClipText, CopyWithoutASelectionRightAfterOpeningLosesTheSuits) {
    startSmall();
    enter(1, "4^h&");
    clickText(1);
    mpopCopy_Click(form);
    EXPECT_EQ(form.ClipText, "4\xA0\xA0\xA0&");
    typeKey(toolkit::key::left);
    mpopCopy_Click(form);
    EXPECT_EQ(form.ClipText, "4^h&");
    EXPECT_TRUE(traced("mpopCopy_Click"));
}

TEST_F(ClipText, CopyTakesTheSelection) {
    startSmall();
    openWith("1234");
    shiftLeft(2);
    ctrl('C');
    EXPECT_EQ(form.ClipText, "34");
    EXPECT_EQ(clipboardText(), "34");
    EXPECT_EQ(shownText(form.CText), "1234");
}

TEST_F(ClipText, CopyWithoutASelectionPutsTheWholeTextOnTheSystemsClipboard) {
    startSmall();
    openWith("North & South");
    fillClipboard("another program's");
    mpopCopy_Click(form);
    EXPECT_EQ(clipboardText(), "North & South");
}

TEST_F(ClipText, CopyGivesOtherProgramsTheSignsOfTheSuits) {
    startSmall();
    enter(1, "1^c^H");
    clickText(1);
    ctrl('C');
    EXPECT_EQ(clipboardText(), "1\u2663\u2665");
}

TEST_F(ClipText, CopyOfASelectionGivesOtherProgramsTheSignsOfTheSuits) {
    startSmall();
    openWith("1^d 2^s");
    shiftLeft(2);
    ctrl('C');
    EXPECT_EQ(clipboardText(), "\u2660");
    shiftLeft(5);
    ctrl('X');
    EXPECT_EQ(clipboardText(), "1\u2666 2\u2660");
    EXPECT_EQ(shownText(form.CText), "");
}

TEST_F(ClipText, CopyOfNothingLeavesTheSystemsClipboardAlone) {
    startSmall();
    fillClipboard("theirs");
    clickText(1);
    ctrl('C');
    EXPECT_EQ(clipboardText(), "theirs");
}

TEST_F(ClipText, CopyDoesNotEnablePasteButTheNextOpeningDoes) {
    startSmall();
    openWith("North");
    mpopCopy_Click(form);
    EXPECT_FALSE(form.mpopPaste.Enabled);
    clickText(2);
    EXPECT_TRUE(form.mpopPaste.Enabled);
}

TEST_F(ClipText, PasteReplacesTheWholeTextOfTheField) {
    startSmall();
    copyToNext("a&b^H");
    typeText("South");
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "a&b^H");
    EXPECT_EQ(form.AText[2].Caption, "a&&b^H");
    EXPECT_EQ(form.AText[2].Tag, "a&&b^H");
    EXPECT_EQ(form.ClipText, "a&b^H");
    EXPECT_EQ(form.LText.Text, "a&b^H");
    EXPECT_TRUE(traced("mpopPaste_Click"));
}

TEST_F(ClipText, PastedSymbolsShowOnlyAfterTheCommit) {
    startSmall();
    copyToNext("4^h");
    const int symbols = form.SText.UBound();
    mpopPaste_Click(form);
    EXPECT_EQ(form.SText.UBound(), symbols);
    typeKey(toolkit::key::escape);
    EXPECT_EQ(form.SText.UBound(), symbols + 1);
}

TEST_F(ClipText, PasteBringsWhatAnotherProgramHasCopiedSinceToTheCaret) {
    startSmall();
    copyToNext("North");
    typeText("ad");
    typeKey(toolkit::key::left);
    fillClipboard("bc");
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "abcd");
    EXPECT_EQ(form.CText.SelStart, 3);
    EXPECT_EQ(form.AText[2].Caption, "abcd");
    EXPECT_TRUE(form.CardModified);
}

TEST_F(ClipText, PasteTakesThePlaceOfTheSelection) {
    startSmall();
    openWith("abcd");
    shiftLeft(2);
    fillClipboard("X");
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "abX");
}

TEST_F(ClipText, CutAndPasteBringsTheCutTextToTheCaretWhateverWasCopiedBefore) {
    startSmall();
    copyToNext("old");
    typeText("alpha beta");
    shiftLeft(4);
    ctrl('X');
    EXPECT_EQ(shownText(form.CText), "alpha ");
    typeKey(toolkit::key::home);
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "betaalpha ");
    EXPECT_EQ(form.ClipText, "old");
}

TEST_F(ClipText, CutOfTheCopiedTextIsNoCopy) {
    startSmall();
    copyToNext("x");
    typeText("ax");
    shiftLeft(1);
    ctrl('X');
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "ax");
}

TEST_F(ClipText, CutAndPasteKeepsEscapesAsTheyWereTyped) {
    startSmall();
    openWith("^H^s");
    shiftLeft(4);
    ctrl('X');
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "^H^s");
}

TEST_F(ClipText, PasteFromThePopUpBringsWhatAnotherProgramHasCopied) {
    startSmall();
    enter(1, "North");
    fillClipboard("1\u2665\u2660");
    EXPECT_TRUE(chooseOf(1, pasteRow));
    EXPECT_NE(shownText(form.CText).find("1^h ^s"), std::string::npos);
    EXPECT_EQ(shownText(form.CText).size(), 11U);
    EXPECT_EQ(form.AText[1].Caption, shownText(form.CText));
    EXPECT_TRUE(form.CardModified);
}

TEST_F(ClipText, PasteFromThePopUpPutsTheCaretBehindWhatItBrought) {
    startSmall();
    openWith("ad");
    typeKey(toolkit::key::left);
    fillClipboard("bc");
    EXPECT_TRUE(chooseOf(1, pasteRow));
    EXPECT_EQ(shownText(form.CText), "abcd");
    EXPECT_EQ(form.CText.SelStart, 3);
}

TEST_F(ClipText, PasteIsGreyWhileNeitherHasAnything) {
    startSmall();
    enter(1, "North");
    fillClipboard("");
    EXPECT_FALSE(chooseOf(1, pasteRow));
    EXPECT_TRUE(chooseOf(1, copyRow));
    EXPECT_TRUE(chooseOf(2, pasteRow));
    EXPECT_EQ(shownText(form.CText), "North");
}

TEST_F(ClipText, PasteOfNothingLeavesTheSelection) {
    startSmall();
    fillClipboard("");
    openWith("abcd");
    shiftLeft(2);
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "abcd");
}

TEST_F(ClipText, PasteShrinksTheTextLikeTyping) {
    startSmall();
    fillClipboard("a long text that no narrow field can hold");
    EXPECT_TRUE(chooseOf(4, pasteRow));
    EXPECT_LT(form.AText[4].Font.Size, form.TextFontSize[1]);
}

TEST_F(ClipText, ThePictureOfTheCardTakesThePlaceOfTheCopy) {
    startSmall();
    openWith("North");
    ctrl('C');
    EXPECT_TRUE(chooseMenu("File>Copy to Clipboard"));
    clickText(2);
    typeText("x");
    ctrl('V');
    EXPECT_EQ(shownText(form.CText), "x");
}

TEST_F(ClipText, FailuresOfCopyAndPasteAreTraced) {
    startSmall();
    copyToNext("x");
    form.TIndex = 99;
    announceError("Error in mpop");
    mpopPaste_Click(form);
    mpopCopy_Click(form);
    EXPECT_TRUE(traced("Error in mpopCopy_Click: #340, Control array element '99' doesn't exist"));
    EXPECT_TRUE(traced("Error in mpopPaste_Click: #340, Control array element '99' doesn't exist"));
    form.TIndex = 2;
}

} // namespace
} // namespace zev::test
