// The menu bar: what can be chosen and which shortcuts act.
#include "fixture.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class MenuBar : public WindowTest {
  protected:
    MenuBar() {
        file.Caption = "&File";
        save.Caption = "&Save";
        more.Caption = "M&ore";
        deep.Caption = "Deep && far";
        readOut.Caption = "Coordinates";
        menu = {{.level = 0, .item = &file},
                {.level = 1, .item = &save, .shortcut = "Ctrl+S", .Click = row("save")},
                {.level = 1},
                {.level = 1, .item = &more},
                {.level = 2, .item = &deep, .shortcut = "Ctrl+D", .Click = row("deep")},
                {.level = 0, .item = &readOut, .Click = row("readOut")}};
    }

    std::function<void()> row(const std::string& name) {
        return [this, name] { note(name); };
    }

    int acts(int letter) {
        log.clear();
        test::typeKey(letter, shift::ctrl);
        return times("save") + times("deep");
    }

    MenuItem file;
    MenuItem save;
    MenuItem more;
    MenuItem deep;
    MenuItem readOut;
};

TEST_F(MenuBar, ChosenRowRuns) {
    EXPECT_TRUE(test::chooseMenu("File>Save"));
    EXPECT_TRUE(test::chooseMenu("File>More>Deep & far"));
    EXPECT_TRUE(test::chooseMenu("Coordinates"));
    EXPECT_EQ(log, (Log{"save", "deep", "readOut"}));
}

TEST_F(MenuBar, DisabledHiddenOrUnknownRowCannotBeChosen) {
    save.Enabled = false;
    more.Visible = false;
    EXPECT_FALSE(test::chooseMenu("File>Save"));
    EXPECT_FALSE(test::chooseMenu("File>More>Deep & far"));
    EXPECT_FALSE(test::chooseMenu("File>Open"));
    form.MenusEnabled = false;
    EXPECT_FALSE(test::chooseMenu("Coordinates"));
    EXPECT_EQ(log, Log{});
}

TEST_F(MenuBar, DisabledSubmenuHidesItsRows) {
    more.Enabled = false;
    EXPECT_FALSE(test::chooseMenu("File>More>Deep & far"));
}

TEST_F(MenuBar, MenuShowsTheCaptionsThatAreTrueWhenItOpens) {
    EXPECT_TRUE(test::chooseMenu("File>Save"));
    save.Caption = "Save as";
    EXPECT_FALSE(test::chooseMenu("File>Save"));
    EXPECT_TRUE(test::chooseMenu("File>Save as"));
    readOut.Caption = "7: (1,2)";
    EXPECT_TRUE(test::chooseMenu("7: (1,2)"));
}

TEST_F(MenuBar, ChoosingARowLeavesItsCheckToTheProgram) {
    save.Checked = true;
    EXPECT_TRUE(test::chooseMenu("File>Save"));
    EXPECT_TRUE(save.Checked);
}

TEST_F(MenuBar, RowShowsTheCheckThatTheProgramHasGivenIt) {
    EXPECT_FALSE(test::showsCheck("File>Save"));
    save.Checked = deep.Checked = true;
    EXPECT_TRUE(test::showsCheck("File>Save"));
    EXPECT_TRUE(test::showsCheck("File>More>Deep & far"));
    EXPECT_TRUE(test::chooseMenu("File>Save"));
    EXPECT_TRUE(test::showsCheck("File>Save"));
    save.Checked = false;
    EXPECT_FALSE(test::showsCheck("File>Save"));
}

TEST_F(MenuBar, ShortcutRunsTheRowInsteadOfTheControlsKeyDown) {
    openBox("abc");
    test::typeKey('S', shift::ctrl);
    EXPECT_EQ(log, (Log{"form.KeyDown 83/2", "save", "box.KeyUp 83/2"}));
}

TEST_F(MenuBar, ShortcutNeedsItsRowShownAndEnabled) {
    EXPECT_EQ(acts('S'), 1);
    save.Enabled = false;
    EXPECT_EQ(acts('S'), 0);
    save.Enabled = true;
    save.Visible = false;
    EXPECT_EQ(acts('S'), 0);
}

TEST_F(MenuBar, ShortcutNeedsAllMenusAroundItShownAndEnabled) {
    EXPECT_EQ(acts('D'), 1);
    more.Enabled = false;
    EXPECT_EQ(acts('D'), 0);
    more.Enabled = true;
    file.Visible = false;
    EXPECT_EQ(acts('D'), 0);
    file.Visible = true;
    form.MenusEnabled = false;
    EXPECT_EQ(acts('D'), 0);
}

TEST_F(MenuBar, InactiveShortcutGoesOnToTheControl) {
    save.Enabled = false;
    test::typeKey('S', shift::ctrl);
    EXPECT_EQ(times("card.KeyDown 83/2"), 1);
    EXPECT_EQ(times("card.KeyPress 19"), 1);
}

TEST_F(MenuBar, KeyConsumedByTheFormRunsNoShortcut) {
    form.KeyDown = [](KeyArguments& key) { key.KeyCode = 0; };
    EXPECT_EQ(acts('S'), 0);
}

TEST_F(MenuBar, OtherModifiersAreAnotherKey) {
    test::typeKey('S', shift::ctrl + shift::shift);
    EXPECT_EQ(times("save"), 0);
    EXPECT_EQ(times("card.KeyDown 83/3"), 1);
}

TEST_F(MenuBar, BarCountsAsPartOfTheFrame) {
    EXPECT_GT(form.FrameHeight - form.FrameWidth, px(10));
}

} // namespace
} // namespace window_test
