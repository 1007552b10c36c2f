#include "text/styles.h"

#include "events/edit_keys.h"
#include "text/edit_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class Styles : public EditTest {
  protected:
    void openWith(std::string_view text) {
        clickText(1);
        typeText(text);
    }
    static void ctrl(char letter) { typeKey(letter, toolkit::shift::ctrl); }
};

TEST_F(Styles, CtrlBMakesTheFieldBoldAndClosesIt) {
    startSmall();
    openWith("North");
    form.CardModified = false;
    ctrl('B');
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_TRUE(form.mpopBold.Checked);
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.P1));
    EXPECT_EQ(form.AText[1].Tag, "North");
    clickText(1);
    ctrl('B');
    EXPECT_FALSE(form.AText[1].Font.Bold);
}

TEST_F(Styles, CtrlIMakesTheFieldItalicAndTabDoesNot) {
    startSmall();
    openWith("North");
    ctrl('I');
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_TRUE(form.mpopItalic.Checked);
    EXPECT_FALSE(isEditing());
    clickText(1);
    typeKey(toolkit::key::tab);
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_FALSE(form.AText[2].Font.Italic);
}

TEST_F(Styles, CtrlLTurnsTheAlignmentAndKeepsWhatWasTyped) {
    startSmall();
    openWith("North");
    ctrl('L');
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Left);
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_TRUE(form.mpopLeft.Checked);
    EXPECT_FALSE(isEditing());
    clickText(1);
    typeKey(toolkit::key::end);
    typeText("!");
    ctrl('L');
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Center);
    EXPECT_EQ(form.AText[1].Tag, "North!");
    EXPECT_FALSE(form.mpopLeft.Checked);
}

TEST_F(Styles, CtrlLKeepsWhatWasTypedWhereAllFieldsWereJustifiedMeanwhile) {
    startSmall();
    openWith("North");
    ASSERT_TRUE(toolkit::test::chooseMenu("Options>Left-Justify all text"));
    ctrl('L');
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Center);
}

TEST_F(Styles, CtrlGHighlightsTheFieldAndClosesIt) {
    startSmall();
    openWith("North");
    ctrl('G');
    EXPECT_TRUE(form.Highlight[1].Visible);
    EXPECT_TRUE(form.mpopHilite.Checked);
    EXPECT_LT(form.Highlight[1].Stack, form.AText[1].Stack);
    EXPECT_EQ(form.Highlight[1].BackColor, toolkit::rgb(255, 255, 0));
    EXPECT_FALSE(isEditing());
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(traced("mpopHilite"));
}

TEST_F(Styles, HighlightFromTheMenuLeavesTheFieldOpen) {
    startSmall();
    openWith("North");
    mpopHilite_Click(form);
    EXPECT_TRUE(form.Highlight[1].Visible);
    EXPECT_TRUE(form.mpopHilite.Checked);
    EXPECT_TRUE(isEditing());
    mpopHilite_Click(form);
    EXPECT_FALSE(form.Highlight[1].Visible);
    EXPECT_FALSE(form.mpopHilite.Checked);
}

TEST_F(Styles, WithBoldfaceOnTheKeyDoesNothingAndEveryFieldIsShownAsBold) {
    startSmall();
    form.mBold.Checked = true;
    form.AText[1].Font.Bold = true;
    openWith("North");
    EXPECT_FALSE(form.mpopBold.Enabled);
    EXPECT_TRUE(form.mpopBold.Checked);
    ctrl('B');
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_TRUE(isEditing());
    form.mBold.Checked = false;
    clickText(2);
    EXPECT_TRUE(form.mpopBold.Enabled);
}

TEST_F(Styles, WithoutAnOpenFieldNoCommandTouchesAnything) {
    startSmall();
    enter(1, "North");
    form.CardModified = false;
    form.ClipText = "1NT";
    form.TIndex = 1;
    for (const auto command : {mpopUndo_Click, mpopBold_Click, mpopItalic_Click, mpopLeft_Click,
                               mpopHilite_Click, mpopCopy_Click, mpopPaste_Click}) {
        command(form);
    }
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_FALSE(form.AText[1].Font.Bold);
    EXPECT_FALSE(form.AText[1].Font.Italic);
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Center);
    EXPECT_FALSE(form.Highlight[1].Visible);
    EXPECT_EQ(form.ClipText, "1NT");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(Styles, UndoBringsTheTextBackWithoutClosingTheField) {
    startSmall();
    enter(1, "a&b");
    openWith("more");
    typeKey(toolkit::key::home);
    typeKey(toolkit::key::right);
    ctrl('Z');
    EXPECT_EQ(shownText(form.CText), "a&b");
    EXPECT_EQ(form.AText[1].Caption, "a&&b");
    EXPECT_EQ(form.CText.SelStart, 1);
    EXPECT_TRUE(isEditing());
    EXPECT_FALSE(form.mpopUndo.Enabled);
    EXPECT_TRUE(form.CardModified);
    ctrl('Z');
    EXPECT_EQ(shownText(form.CText), "a&b");
}

TEST_F(Styles, UndoBringsStylesAndAlignmentBack) {
    startSmall();
    enter(1, "North");
    clickText(1);
    mpopBold_Click(form);
    EXPECT_FALSE(isEditing());
    form.AText[1].Font.Bold = false;
    answerPopup([](std::span<const toolkit::PopupRow> rows) { rows[4].Click(); });
    clickText(1, toolkit::button::right);
    ASSERT_TRUE(form.LText.Visible);
    form.AText[1].Font.Italic = true;
    ctrl('Z');
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_FALSE(form.LText.Visible);
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Center);
    EXPECT_FALSE(form.AText[1].Font.Italic);
    EXPECT_FALSE(form.mpopLeft.Checked);
    EXPECT_EQ(shownText(form.CText), "North");
    EXPECT_LT(form.CText.Height, form.AText[1].Height);
    EXPECT_TRUE(hasPlatformFocus(form.CText));
}

TEST_F(Styles, UndoAfterAStyleKeyHasNothingToBringBack) {
    startSmall();
    openWith("North");
    ctrl('B');
    clickText(1);
    EXPECT_FALSE(form.mpopUndo.Enabled);
    ctrl('Z');
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_EQ(shownText(form.CText), "North");
}

} // namespace
} // namespace zev::test
