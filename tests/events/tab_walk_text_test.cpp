
#include "text/edit_test.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
namespace key = toolkit::key;
namespace shift = toolkit::shift;

class TextWalk : public EditTest {};

TEST_F(TextWalk, TabCommitsAndOpensTheNextTextAtItsStart) {
    startSmall();
    enter(2, "South");
    clickText(1);
    typeText("North");
    typeKey(key::tab);
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_EQ(form.TIndex, 2);
    EXPECT_EQ(shownText(form.CText), "South");
    EXPECT_EQ(form.CText.SelStart, 0);
    EXPECT_EQ(form.CText.SelLength, 0);
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    typeText("x");
    EXPECT_EQ(shownText(form.CText), "xSouth");
    EXPECT_TRUE(traced("  xText_LostFocus TabTo 2, from 1"));
}

TEST_F(TextWalk, TextLongerThanItsFieldIsShownFromItsStart) {
    startSmall("3,4\r\n", 4);
    const std::string text =
        "iiiiiiiiiiiiiiiiiiii WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW";
    enter(4, text);
    clickText(3);
    typeKey(key::tab);
    ASSERT_EQ(form.TIndex, 4);
    EXPECT_EQ(form.CText.SelStart, 0);
    EXPECT_EQ(form.CText.SelLength, 0);
    const auto shown = grabCard();
    typeKey(key::home);
    const auto start = grabCard();
    // Leaves out the caret, which blinks.
    const auto left = static_cast<int>(form.CText.Left / pixel) + 4;
    for (int x = left; x < left + 30; ++x) {
        for (int y = 590; y < 620; ++y) ASSERT_EQ(shown.pixel(x, y), start.pixel(x, y));
    }
    typeText("x");
    EXPECT_EQ(shownText(form.CText), "x" + text);
}

TEST_F(TextWalk, ClickIntoATextLongerThanItsFieldPutsTheCaretThere) {
    startSmall("3,4\r\n", 4);
    enter(4, std::string(60, 'W'));
    clickText(4);
    EXPECT_GT(form.CText.SelStart, 20);
    EXPECT_LT(form.CText.SelStart, 40);
}

TEST_F(TextWalk, EnterTakesOneStepAndLeavesTheNextFieldOpen) {
    startSmall();
    clickText(1);
    typeText("North");
    typeKey(key::enter);
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_EQ(form.TIndex, 2);
    EXPECT_TRUE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    typeText("South");
    typeKey(key::enter);
    EXPECT_EQ(form.AText[2].Tag, "South");
    EXPECT_EQ(form.TabCode, 1001);
    EXPECT_TRUE(form.TabActive);
    EXPECT_FALSE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.P1));
}

TEST_F(TextWalk, EveryEnterWalks) {
    startSmall("1,2\r\n2,3\r\n3,1\r\n", 3);
    clickText(1);
    for (const int next : {2, 3, 1, 2}) {
        typeKey(key::enter);
        EXPECT_EQ(form.TIndex, next);
        EXPECT_TRUE(isEditing());
    }
}

TEST_F(TextWalk, ShiftTabAndShiftEnterGoBack) {
    startSmall();
    clickText(2);
    typeKey(key::tab, shift::shift);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_TRUE(isEditing());
    clickText(2);
    typeKey(key::enter, shift::shift);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_TRUE(isEditing());
    EXPECT_TRUE(traced("  xText_LostFocus TabTo 1, from 2"));
}

TEST_F(TextWalk, ShiftTabFromTheLastTextGoesBackToTheMark) {
    startSmall();
    clickText(3);
    typeKey(key::tab, shift::shift);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(form.TabCode, 1002);
    EXPECT_TRUE(form.TabActive);
    typeKey(key::space);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(TextWalk, WithoutASuccessorTheFieldIsClosedAndTheWalkIsOver) {
    startSmall();
    for (const int last : {key::tab, key::enter}) {
        clickText(3);
        typeKey(key::end);
        typeText("East");
        typeKey(last);
        EXPECT_FALSE(isEditing());
        EXPECT_TRUE(hasPlatformFocus(form.P1));
        EXPECT_FALSE(form.TabActive);
        typeKey(key::tab);
        EXPECT_FALSE(isEditing());
    }
    EXPECT_EQ(form.AText[3].Tag, "EastEast");
}

TEST_F(TextWalk, WithoutAPredecessorTheFieldIsClosed) {
    startSmall();
    clickText(1);
    typeKey(key::tab, shift::shift);
    EXPECT_FALSE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.P1));
}

TEST_F(TextWalk, HeldKeysGoOneStep) {
    startSmall("1,2\r\n2,3\r\n3,1\r\n", 3);
    for (const int held : {key::tab, key::enter}) {
        clickText(1);
        pressKey(held);
        repeatKey(held);
        repeatKey(held);
        releaseKey(held);
        EXPECT_EQ(form.TIndex, 2);
    }
}

TEST_F(TextWalk, WholeWalkFillsInTheCardByKeyboardAlone) {
    startSmall();
    clickText(1);
    typeText("one");
    typeKey(key::tab);
    typeText("two");
    typeKey(key::tab);
    typeKey(key::space);
    typeKey(key::tab);
    typeKey(key::space);
    typeKey(key::tab);
    typeText("three");
    typeKey(key::escape);
    EXPECT_EQ(form.AText[1].Tag, "one");
    EXPECT_EQ(form.AText[2].Tag, "two");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_EQ(form.AText[3].Tag, "three");
}

TEST_F(TextWalk, WithoutATableEachTabTracesTheBoundError) {
    startSmall({}, 0);
    announceError("Error in xText_LostFocus");
    clickText(1);
    typeText("North");
    typeKey(key::tab);
    EXPECT_TRUE(traced("Error in xText_LostFocus: #9, Subscript out of range"));
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_FALSE(isEditing());
    EXPECT_TRUE(hasPlatformFocus(form.P1));
}

} // namespace
} // namespace zev::test
