#include "events/keys.h"

#include "text/edit_test.h"
#include "toolkit/base/number_text.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
namespace key = toolkit::key;
namespace shift = toolkit::shift;

class FormKeys : public EditTest {};

TEST_F(FormKeys, ShiftF3TurnsTheTraceOnAndAltF3Off) {
    startSmall();
    typeKey(key::f3, shift::shift);
    EXPECT_TRUE(form.TraceOn);
    typeKey(key::f3);
    EXPECT_TRUE(form.TraceOn);
    typeKey(key::f3, shift::alt);
    EXPECT_FALSE(form.TraceOn);
}

TEST_F(FormKeys, ShiftF4TracesThePlaceOfTheCardAndOfTheOpenBox) {
    startSmall();
    form.P1.Move(-150, -300, 17970, 18540);
    typeKey(key::f4, shift::shift);
    const std::string card = "**F4** P1=-150, -300, 17970, 18540, visible=True";
    EXPECT_TRUE(traced(card + " no text entry visible"));
    form.P1.Move(0, 0);
    clickText(1);
    form.P1.Move(-150, -300);
    const std::string place = "1500, 4500, 4500, " + toolkit::numberText(form.CText.Height);
    typeKey(key::f4, shift::shift);
    EXPECT_TRUE(traced(card + " ctext: " + place));
    form.LText.Move(30, 45, 60, 75);
    form.LText.Visible = true;
    typeKey(key::f4, shift::shift);
    EXPECT_TRUE(traced(card + " ltext: 30, 45, 60, 75 ctext: " + place));
    form.CText.Visible = false;
    typeKey(key::f4, shift::shift);
    EXPECT_TRUE(traced(card + " ltext: 30, 45, 60, 75"));
}

TEST_F(FormKeys, TraceKeysDoNotReachTheBox) {
    startSmall();
    clickText(1);
    toolkit::KeyArguments pressed{key::f4, shift::shift};
    Form_KeyDown(form, pressed);
    EXPECT_EQ(pressed.KeyCode, 0);
    EXPECT_EQ(pressed.Shift, 0);
}

TEST_F(FormKeys, F1ShowsTheHelpAlsoWhileEditing) {
    startSmall();
    clickText(1);
    typeText("North");
    typeKey(key::f1);
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_EQ(form.AText[1].Tag, "North");
}

TEST_F(FormKeys, WithTheHelpOpenNoKeyOfTheTableActs) {
    startSmall();
    form.P1.Move(-150, -300);
    typeKey(key::f1);
    form.Trace.clear();
    for (const int code : {key::home, key::end, key::pageUp, key::pageDown, key::left, key::right,
                           key::up, key::down, key::f1}) {
        typeKey(code);
    }
    EXPECT_EQ(form.P1.Left, -150);
    EXPECT_EQ(form.P1.Top, -300);
    EXPECT_EQ(traceIndex("MHelp_Click"), -1);
    typeKey(key::escape);
    EXPECT_FALSE(form.THelp.Visible);
    typeKey(key::home);
    EXPECT_EQ(form.P1.Left, 0);
}

TEST_F(FormKeys, LeftAndHomeBelongToTheBoxAndUpMovesTheCard) {
    startSmall();
    form.P1.Move(0, -3000);
    clickText(1);
    typeText("1234");
    typeKey(key::left);
    EXPECT_EQ(form.CText.SelStart, 3);
    typeKey(key::home);
    EXPECT_EQ(form.CText.SelStart, 0);
    typeKey(key::end);
    EXPECT_EQ(form.CText.SelStart, 4);
    EXPECT_EQ(form.P1.Top, -3000);
    typeKey(key::up);
    EXPECT_GT(form.P1.Top, -3000);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(form.CText.SelStart, 4);
}

TEST_F(FormKeys, ConsumedKeyIsReportedAsNone) {
    startSmall();
    toolkit::KeyArguments pressed{key::pageUp, shift::ctrl};
    Form_KeyDown(form, pressed);
    EXPECT_EQ(pressed.KeyCode, 0);
    toolkit::KeyArguments modified{key::up, shift::shift};
    Form_KeyDown(form, modified);
    EXPECT_EQ(modified.KeyCode, key::up);
    toolkit::KeyArguments other{'Q', 0};
    Form_KeyDown(form, other);
    EXPECT_EQ(other.KeyCode, 'Q');
}

TEST_F(FormKeys, CardTakesTheCornerKeysThatTheFormLetThrough) {
    startSmall();
    const float lowest = form.ScaleHeight() - form.P1.Height;
    toolkit::KeyArguments endKey{key::end, 0};
    P1_KeyDown(form, endKey);
    EXPECT_EQ(form.P1.Top, lowest);
    toolkit::KeyArguments homeKey{key::home, 0};
    P1_KeyDown(form, homeKey);
    EXPECT_EQ(form.P1.Top, 0);
    form.P1.Move(-150, -300);
    toolkit::KeyArguments leftKey{key::left, 0};
    P1_KeyDown(form, leftKey);
    EXPECT_NE(form.P1.Left, -150);
}

} // namespace
} // namespace zev::test
