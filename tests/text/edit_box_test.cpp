
#include "card/write_card.h"
#include "form/modified.h"
#include "text/edit_box.h"
#include "text/edit_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class Commit : public EditTest {};

TEST_F(Commit, ClickOnBareCardKeepsTheTextAndGivesTheCardTheFocus) {
    startSmall();
    clickText(1);
    typeText("1NT");
    clickBareCard();
    EXPECT_FALSE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.P1));
    EXPECT_EQ(form.AText[1].Tag, "1NT");
    EXPECT_EQ(form.AText[1].Caption, "1NT");
}

TEST_F(Commit, ClickOnAnotherFieldCommitsTheFirstOnce) {
    startSmall();
    clickText(1);
    typeText("1NT");
    clickText(2);
    EXPECT_EQ(form.AText[1].Tag, "1NT");
    EXPECT_EQ(form.AText[2].Tag, "");
    EXPECT_EQ(form.TIndex, 2);
    EXPECT_EQ(shownText(form.CText), "");
    EXPECT_TRUE(hasPlatformFocus(form.CText));
}

TEST_F(Commit, FieldsOfBothAlignmentsKeepTheirOwnTexts) {
    startSmall();
    form.AText[2].Alignment = toolkit::Alignment::Left;
    enter(2, "left");
    clickText(1);
    typeText("centre");
    clickText(2);
    EXPECT_EQ(form.AText[1].Tag, "centre");
    EXPECT_EQ(form.AText[2].Tag, "left");
    typeKey(toolkit::key::end);
    typeText("er");
    clickText(1);
    EXPECT_EQ(form.AText[2].Tag, "lefter");
    EXPECT_EQ(shownText(form.CText), "centre");
}

TEST_F(Commit, ClickOnAMarkCommitsFirstAndSpaceThenTogglesTheMark) {
    startSmall();
    clickText(1);
    typeText("1NT");
    clickMark(1);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(form.AText[1].Tag, "1NT");
    EXPECT_TRUE(form.AMark[1].Visible);
    typeKey(toolkit::key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[1].Tag, "1NT");
}

TEST_F(Commit, ClickOnASetMarkCommitsToo) {
    startSmall();
    form.AMark[1].Visible = true;
    clickText(1);
    typeText("1NT");
    clickMark(1);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(form.AText[1].Tag, "1NT");
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(Commit, TextThatCameWithoutAKeyCountsAsAChange) {
    startSmall();
    clickText(1);
    form.CText.Text = "dropped";
    commitOpenField(form);
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.AText[1].Tag, "dropped");
}

TEST_F(Commit, UnchangedTextLeavesTheCardUnmodified) {
    startSmall();
    enter(1, "a&b");
    form.CardModified = false;
    clickText(1);
    clickBareCard();
    EXPECT_FALSE(form.CardModified);
}

TEST_F(Commit, TextChangedBackIsNoChangeAtTheCommitButTypingHasModifiedTheCard) {
    startSmall();
    enter(1, "a");
    form.CardModified = false;
    clickText(1);
    typeKey(toolkit::key::end);
    typeText("b");
    EXPECT_TRUE(form.CardModified);
    typeKey(toolkit::key::backspace);
    EXPECT_TRUE(form.CardModified);
    form.CardModified = false;
    clickBareCard();
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.AText[1].Tag, "a");
}

TEST_F(Commit, StandsInTheTraceWithItsField) {
    startSmall();
    clickText(1);
    typeText("x^s");
    form.Trace.clear();
    commitOpenField(form);
    EXPECT_EQ(form.ActiveControl, &form.P1);
    const int begun = traceIndex("xText_LostFocus tindex=1,  origindex=1, False");
    EXPECT_GE(begun, 0);
    EXPECT_LT(traceIndex("CText_LostFocus"), begun);
    EXPECT_LT(begun, traceIndex("SetMod 1"));
    EXPECT_LT(traceIndex("SetMod 1"), traceIndex("SetSym 1"));
}

TEST_F(Commit, SecondCommitOfTheSameFieldIsHarmless) {
    startSmall();
    clickText(1);
    typeText("4^h");
    CText_LostFocus(form);
    CText_LostFocus(form);
    EXPECT_EQ(form.AText[1].Tag, "4^h");
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_EQ(form.OrigText, "");
    EXPECT_EQ(form.SText.UBound(), 2);
    EXPECT_FALSE(form.SText[1].Visible);
    EXPECT_TRUE(form.SText[2].Visible);
}

TEST_F(Commit, LeavesTheLabelInFrontOfItsSymbols) {
    startSmall();
    enter(1, "4^h");
    EXPECT_GT(form.AText[1].Stack, form.SText[1].Stack);
    EXPECT_LT(form.Highlight[1].Stack, form.AText[1].Stack);
}

TEST_F(Commit, WithoutAFieldNothingHappens) {
    startSmall();
    form.CText.Text = "stray";
    CText_LostFocus(form);
    EXPECT_TRUE(traced("xText_LostFocus tindex=0,  origindex=0, False"));
    EXPECT_EQ(form.AText[0].Caption, "");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(Commit, FieldWhoseOpeningStateIsGoneIsLeftAlone) {
    startSmall();
    clickText(1);
    form.CText.Text = "stray";
    form.OrigIndex = 0;
    CText_LostFocus(form);
    EXPECT_EQ(form.AText[1].Tag, "");
}

TEST_F(Commit, DesignModeCommitsNothing) {
    startSmall();
    clickText(1);
    form.CText.Text = "stray";
    form.MShowShapes.Checked = true;
    CText_LostFocus(form);
    EXPECT_EQ(form.AText[1].Tag, "");
}

TEST_F(Commit, OfAFieldThatIsGoneIsTraced) {
    startSmall();
    announceError("Error in");
    form.TIndex = form.OrigIndex = 99;
    LText_LostFocus(form);
    EXPECT_TRUE(traced("Ltext_LostFocus"));
    EXPECT_TRUE(traced("Error in xText_LostFocus: #340, Control array element '99' doesn't exist"));
}

TEST_F(Commit, BySaveKeepsTheFocusOnTheCardAndWalksNowhere) {
    startSmall();
    writeCard("Jones", "");
    form.CardName = "Jones";
    clickText(1);
    typeText("1NT");
    typeKey('S', toolkit::shift::ctrl);
    EXPECT_FALSE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.P1));
    EXPECT_EQ(form.ActiveControl, &form.P1);
    EXPECT_NE(dataFileContent("Jones.zev").find("1NT"), std::string::npos);
    EXPECT_EQ(form.TIndex, 0);
}

} // namespace
} // namespace zev::test
