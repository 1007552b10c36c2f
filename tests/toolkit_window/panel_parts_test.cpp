// The controls of a panel.
#include "panel_fixture.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace window_test {
namespace {

using namespace toolkit;

using PanelParts = PanelTest;

TEST_F(PanelParts, TypingGoesIntoTheTextBox) {
    int changes = 0;
    name.Change = [&] { ++changes; };
    test::typeText("ab");
    EXPECT_EQ(name.Text, "ab");
    EXPECT_EQ(changes, 2);
    name.Text = "set";
    EXPECT_EQ(test::shownText(name), "set");
    EXPECT_EQ(changes, 2);
}

TEST_F(PanelParts, ATextThatIsSetWhileHiddenIsShownWithThePanel) {
    test::typeText("ab");
    panel.Visible = false;
    window->update();
    name.Text = "other";
    openPanel();
    EXPECT_EQ(test::shownText(name), "other");
    EXPECT_EQ(name.Text, "other");
}

TEST_F(PanelParts, AClickedRowIsCurrent) {
    const auto point = test::pointOnRow(rows, 1);
    test::click(point.x, point.y);
    EXPECT_EQ(rows.ListIndex, 1);
    EXPECT_EQ(times("rows.Click"), 1);
    EXPECT_TRUE(hasFocus(rows));
}

TEST_F(PanelParts, AButtonIsPressedWithTheMouseAndTakesTheFocus) {
    clickAt(50, 172);
    EXPECT_EQ(times("ok.Click"), 1);
    EXPECT_TRUE(hasFocus(ok));
}

TEST_F(PanelParts, ADisabledButtonDoesNothing) {
    ok.Enabled = false;
    EXPECT_TRUE(test::isGreyed(ok));
    clickAt(50, 172);
    test::typeKey(key::enter);
    EXPECT_EQ(times("ok.Click"), 0);
    EXPECT_TRUE(hasFocus(name));
}

TEST_F(PanelParts, ASliderTellsWhatThePlayerDoesAndNotWhatTheProgramSets) {
    form.SetFocus(bar);
    bar.Value = 100;
    window->update();
    EXPECT_EQ(times("bar.Scroll 100"), 0);
    test::typeKey(key::right);
    EXPECT_EQ(times("bar.Scroll 101"), 1);
    test::typeKey(key::pageDown);
    EXPECT_EQ(times("bar.Scroll 85"), 1);
    test::typeKey(key::end);
    EXPECT_EQ(bar.Value, 255);
}

TEST_F(PanelParts, ASliderScrollsWithTheWheel) {
    bar.Value = 100;
    test::turnWheelOver(bar, 120);
    EXPECT_GT(bar.Value, 100);
    EXPECT_EQ(times("bar.Scroll " + std::to_string(bar.Value)), 1);
}

TEST_F(PanelParts, AScrollMaySetTheOtherValuesWithoutFurtherEvents) {
    form.SetFocus(bar);
    bar.Scroll = [this] {
        note("bar.Scroll");
        bar.Value = 50;
    };
    test::typeKey(key::right);
    EXPECT_EQ(times("bar.Scroll"), 1);
    EXPECT_EQ(bar.Value, 50);
}

TEST_F(PanelParts, AValueSetInAHandlerOutlivesAWait) {
    form.SetFocus(bar);
    ok.Click = [this] {
        bar.Value = 77;
        doEvents();
    };
    test::typeKey(key::enter);
    EXPECT_EQ(bar.Value, 77);
}

} // namespace
} // namespace window_test
