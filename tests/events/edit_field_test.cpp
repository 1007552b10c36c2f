#include "events/edit_field.h"

#include "card/document.h"
#include "text/edit_box.h"
#include "text/edit_test.h"
#include "text/set_sym.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class EditField : public EditTest {
  protected:
    /// Clicks in the strip of the label below the box, which is lower than the label.
    void clickBelowTheBox(int field, float x) {
        const toolkit::Label& label = form.AText[field];
        click(label.Left + x, label.Top + label.Height - 1.5F * pixel);
    }
};

TEST_F(EditField, ClickLaysABoxOfTheSameFontOverTheLabel) {
    startSmall();
    form.AText[2].ForeColor = toolkit::rgb(195, 17, 25);
    clickText(2);
    const toolkit::Label& label = form.AText[2];
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_FALSE(form.LText.Visible);
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    EXPECT_EQ(form.CText.Left, label.Left);
    EXPECT_EQ(form.CText.Top, label.Top);
    EXPECT_EQ(form.CText.Width, label.Width);
    EXPECT_EQ(form.CText.Height, label.Height - 3 * pixel);
    EXPECT_EQ(form.CText.Font, label.Font);
    EXPECT_EQ(form.CText.ForeColor, toolkit::rgb(195, 17, 25));
    EXPECT_EQ(form.TIndex, 2);
    EXPECT_EQ(form.OrigIndex, 2);
    EXPECT_FALSE(form.OpeningField);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(EditField, LeftJustifiedFieldOpensInTheLeftBox) {
    startSmall();
    form.AText[1].Alignment = toolkit::Alignment::Left;
    clickText(1);
    EXPECT_TRUE(form.LText.Visible);
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(form.OrigAlign, toolkit::Alignment::Left);
    EXPECT_TRUE(form.mpopLeft.Checked);
    clickText(2);
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_FALSE(form.LText.Visible);
    EXPECT_FALSE(form.mpopLeft.Checked);
}

TEST_F(EditField, FieldWithSymbolsShowsItsEscapes) {
    startSmall();
    enter(1, "4^H!");
    EXPECT_EQ(form.AText[1].Caption, "4\xA0\xA0\xA0!");
    clickText(1);
    EXPECT_EQ(shownText(form.CText), "4^H!");
}

TEST_F(EditField, BoxShowsSingleAmpersands) {
    startSmall();
    enter(1, "a&b");
    EXPECT_EQ(form.AText[1].Tag, "a&&b");
    EXPECT_EQ(form.AText[1].Caption, "a&&b");
    clickText(1);
    EXPECT_EQ(shownText(form.CText), "a&b");
}

TEST_F(EditField, MenuChecksFollowTheField) {
    startSmall();
    form.AText[1].Font.Bold = true;
    form.AText[2].Font.Italic = true;
    form.Highlight[2].Visible = true;
    clickText(1);
    EXPECT_TRUE(form.mpopBold.Checked);
    EXPECT_FALSE(form.mpopItalic.Checked);
    EXPECT_FALSE(form.mpopHilite.Checked);
    clickText(2);
    EXPECT_FALSE(form.mpopBold.Checked);
    EXPECT_TRUE(form.mpopItalic.Checked);
    EXPECT_TRUE(form.mpopHilite.Checked);
}

TEST_F(EditField, OpeningEnablesPasteForAFilledClipAndDisablesUndo) {
    startSmall();
    form.mpopUndo.Enabled = true;
    clickText(1);
    EXPECT_FALSE(form.mpopPaste.Enabled);
    EXPECT_FALSE(form.mpopUndo.Enabled);
    form.ClipText = "1NT";
    clickText(2);
    EXPECT_TRUE(form.mpopPaste.Enabled);
}

TEST_F(EditField, ClickOnTheLabelOfTheOpenFieldOnlyMovesTheCaret) {
    startSmall();
    enter(1, "old");
    clickText(1);
    typeKey(toolkit::key::end);
    typeText("er");
    ASSERT_EQ(form.CText.SelStart, 5);
    clickBelowTheBox(1, pixel);
    EXPECT_EQ(shownText(form.CText), "older");
    EXPECT_EQ(form.CText.SelStart, 0);
    EXPECT_EQ(form.OrigText, "old");
    EXPECT_EQ(form.UText.Text, "old");
    EXPECT_TRUE(form.mpopUndo.Enabled);
    EXPECT_TRUE(isEditing());
}

TEST_F(EditField, ClickLeftOfACentredTextPutsTheCaretAtItsStart) {
    startSmall();
    enter(1, "North");
    const toolkit::Label& label = form.AText[1];
    click(label.Left + 2 * pixel, label.Top + label.Height / 2);
    EXPECT_EQ(form.CText.SelStart, 0);
}

TEST_F(EditField, ClickRightOfACentredTextPutsTheCaretAtItsEnd) {
    startSmall();
    enter(1, "North");
    const toolkit::Label& label = form.AText[1];
    click(label.Left + label.Width - 2 * pixel, label.Top + label.Height / 2);
    EXPECT_EQ(form.CText.SelStart, 5);
}

TEST_F(EditField, CaretLandsBehindTheCharacterClicked) {
    startSmall();
    enter(1, "North");
    const toolkit::Label& label = form.AText[1];
    const float start = (label.Width - widthIn(1, "North")) / 2;
    click(label.Left + start + widthIn(1, "N") + 2 * pixel, label.Top + label.Height / 2);
    EXPECT_EQ(form.CText.SelStart, 2);
}

TEST_F(EditField, CaretOfALeftJustifiedFieldGoesByTheLeftEdge) {
    startSmall();
    enter(1, "North");
    form.AText[1].Alignment = toolkit::Alignment::Left;
    const toolkit::Label& label = form.AText[1];
    click(label.Left + widthIn(1, "Nor") + 2 * pixel, label.Top + label.Height / 2);
    EXPECT_EQ(form.LText.SelStart, 4);
}

TEST_F(EditField, ReopenedFieldTakesANewOpeningState) {
    startSmall();
    clickText(1);
    typeText("one");
    clickBareCard();
    ASSERT_FALSE(isEditing());
    ASSERT_EQ(form.TIndex, 1);
    clickText(1);
    EXPECT_EQ(form.OrigText, "one");
    EXPECT_EQ(form.UText.Text, "one");
}

TEST_F(EditField, OpeningStateHoldsTextFontAndAlignment) {
    startSmall();
    enter(1, "a&b");
    form.AText[1].Font.Italic = true;
    clickText(1);
    EXPECT_EQ(form.OrigText, "a&&b");
    EXPECT_EQ(form.OrigAlign, toolkit::Alignment::Center);
    EXPECT_EQ(form.UText.Text, "a&b");
    EXPECT_EQ(form.UText.Font, form.AText[1].Font);
    EXPECT_FALSE(form.UText.Visible);
}

TEST_F(EditField, PressThatNeverBecameAClickIsForgotten) {
    startSmall();
    enter(2, "South");
    clickText(1);
    const auto target = middleOf(form.AText[2]);
    moveMouse(target.x, target.y);
    pressMouse(target.x, target.y, toolkit::button::right);
    releaseMouse(800 * pixel, 800 * pixel, toolkit::button::right);
    ASSERT_EQ(form.TIndex, 1);
    typeKey(toolkit::key::tab);
    EXPECT_EQ(form.TIndex, 2);
    EXPECT_EQ(popups, 0);
    EXPECT_EQ(form.CText.SelStart, 0);
}

TEST_F(EditField, TracesTellTheStepsOfOpening) {
    startSmall();
    enter(1, "x");
    form.Trace.clear();
    clickText(1);
    const int clicked = traceIndex("AText_Click 1");
    const int dressed = traceIndex("SetTextBox 1");
    const int focused = traceIndex("xText_GotFocus 1");
    const int placed = traceIndex("PositionTextCursor");
    EXPECT_GE(clicked, 0);
    EXPECT_LT(clicked, dressed);
    EXPECT_LT(dressed, traceIndex("CText_GotFocus"));
    EXPECT_LT(traceIndex("CText_GotFocus"), focused);
    EXPECT_LT(focused, placed);
}

TEST_F(EditField, CaretOfAnEmptyBoxIsNotLookedFor) {
    startSmall();
    clickText(1);
    EXPECT_EQ(traceIndex("PositionTextCursor"), -1);
}

TEST_F(EditField, FieldThatDoesNotExistIsTracedAndNothingOpens) {
    startSmall();
    announceError("Error in");
    AText_Click(form, 99);
    EXPECT_TRUE(traced("Error in AText_Click: #340, Control array element '99' doesn't exist"));
    EXPECT_FALSE(form.OpeningField);
    EXPECT_FALSE(isEditing());
    SetTextBox(form, form.CText, 99);
    EXPECT_TRUE(traced("Error in SetTextBox: #340, Control array element '99' doesn't exist"));
}

TEST_F(EditField, DesignModeOpensNoBox) {
    startSmall();
    form.MShowShapes.Checked = true;
    clickText(1);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(form.ClickIndex, 0);
}

TEST_F(EditField, KeepsATextOfAnyLength) {
    startSmall();
    const std::string text(40000, 'x');
    showText(form, 1, text);
    clickText(1);
    typeKey(toolkit::key::end);
    toolkit::test::typeText("y");
    typeKey(toolkit::key::escape);
    EXPECT_EQ(form.AText[1].Tag.size(), text.size() + 1);
}

} // namespace
} // namespace zev::test
