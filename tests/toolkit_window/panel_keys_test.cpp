// What keys do on a panel.
#include "panel_fixture.h"
#include "toolkit/testing/test_keys.h"

namespace window_test {
namespace {

using namespace toolkit;

using PanelKeys = PanelTest;

TEST_F(PanelKeys, TabWalksThroughWhatCanBeUsedInACircle) {
    ok.Enabled = false;
    test::typeKey(key::tab);
    EXPECT_TRUE(hasFocus(rows));
    test::typeKey(key::tab);
    EXPECT_TRUE(hasFocus(bar));
    test::typeKey(key::tab);
    EXPECT_TRUE(hasFocus(cancel));
    test::typeKey(key::tab);
    EXPECT_TRUE(hasFocus(name));
    EXPECT_EQ(times("rows.GotFocus"), 1);
    EXPECT_EQ(times("rows.LostFocus"), 1);
}

TEST_F(PanelKeys, ShiftTabWalksBack) {
    test::typeKey(key::tab, shift::shift);
    EXPECT_TRUE(hasFocus(cancel));
    test::typeKey(key::tab, shift::shift);
    EXPECT_TRUE(hasFocus(ok));
}

TEST_F(PanelKeys, EnterPressesTheDefaultButton) {
    test::typeKey(key::enter);
    EXPECT_EQ(times("ok.Click"), 1);
    EXPECT_EQ(times("name.KeyPress 13"), 1);
}

TEST_F(PanelKeys, EnterAndSpacePressTheButtonThatHasTheFocus) {
    form.SetFocus(cancel);
    test::typeKey(key::enter);
    test::typeKey(key::space);
    EXPECT_EQ(times("cancel.Click"), 2);
    EXPECT_EQ(times("ok.Click"), 0);
}

TEST_F(PanelKeys, EscapePressesTheCancelButton) {
    form.SetFocus(bar);
    test::typeKey(key::escape);
    EXPECT_EQ(times("cancel.Click"), 1);
}

TEST_F(PanelKeys, AHandlerThatTakesTheKeyKeepsItFromTheButtons) {
    name.KeyPress = [](int& character) { character = 0; };
    test::typeKey(key::enter);
    test::typeKey(key::escape);
    EXPECT_EQ(times("ok.Click"), 0);
    EXPECT_EQ(times("cancel.Click"), 0);
}

TEST_F(PanelKeys, AHeldKeyPressesAButtonOnce) {
    test::typeKey(key::enter);
    test::repeatKey(key::enter);
    EXPECT_EQ(times("ok.Click"), 1);
}

TEST_F(PanelKeys, TheFormSeesEveryKeyFirst) {
    test::typeKey(key::down);
    EXPECT_EQ(log.front(), "form.KeyDown 40/0");
    form.KeyDown = [](KeyArguments& key) { key = {}; };
    test::typeKey(key::tab);
    EXPECT_TRUE(hasFocus(name));
}

} // namespace
} // namespace window_test
