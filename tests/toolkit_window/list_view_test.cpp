// What mouse and keys do to a list.
#include "list_fixture.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

using ListView = ListTest;

TEST_F(ListView, FocusAloneMakesNoRowCurrent) {
    openList({"one", "two"});
    form.SetFocus(list);
    window->update();
    EXPECT_TRUE(test::hasPlatformFocus(list));
    EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(ListView, ClickMakesTheRowCurrentAndComesAsAnEvent) {
    openList({"one", "two", "three"});
    int current = -2;
    list.Click = [&] { current = list.ListIndex; };
    test::click(px(110), middleOfRow(1));
    EXPECT_EQ(current, 1);
    EXPECT_EQ(list.ListIndex, 1);
}

TEST_F(ListView, ClickBelowTheLastRowIsNone) {
    openList({"one"});
    test::click(px(110), middleOfRow(3));
    EXPECT_EQ(times("list.Click"), 0);
    EXPECT_EQ(list.PointedIndex, -1);
}

TEST_F(ListView, ArrowMovesTheCurrentRowAndClicks) {
    openList({"one", "two", "three"});
    list.ListIndex = 0;
    form.SetFocus(list);
    test::typeKey(key::down);
    EXPECT_EQ(list.ListIndex, 1);
    EXPECT_EQ(times("list.Click"), 1);
    test::typeKey(key::home);
    EXPECT_EQ(list.ListIndex, 0);
    test::typeKey(key::up);
    EXPECT_EQ(times("list.Click"), 2);
}

TEST_F(ListView, ArrowIsNoClickWhereTheListSaysSo) {
    openList({"one", "two", "three"});
    list.ClicksByKey = false;
    list.ListIndex = 0;
    form.SetFocus(list);
    test::typeKey(key::down);
    test::typeText("th");
    EXPECT_EQ(list.ListIndex, 2);
    EXPECT_EQ(times("list.Click"), 0);
    test::click(px(110), middleOfRow(1));
    EXPECT_EQ(times("list.Click"), 1);
}

TEST_F(ListView, ProgramAndPlayerScrollTheSameRows) {
    openList(std::vector<std::string>(20, "row"));
    form.SetFocus(list);
    list.ListIndex = 0;
    test::typeKey(key::end);
    const int lowest = list.TopIndex;
    EXPECT_GT(lowest, 0);
    list.TopIndex = 3;
    test::typeKey(key::f1);
    EXPECT_EQ(list.TopIndex, 3);
    test::click(px(110), middleOfRow(0));
    EXPECT_EQ(list.ListIndex, 3);
    list.TopIndex = 19;
    window->update();
    EXPECT_EQ(list.TopIndex, lowest);
}

TEST_F(ListView, EnterAndEscapeComeAsCharacters) {
    openList({"one"});
    form.SetFocus(list);
    test::typeKey(key::enter);
    test::typeKey(key::escape);
    EXPECT_EQ(times("list.KeyPress 13"), 1);
    EXPECT_EQ(times("list.KeyPress 27"), 1);
}

TEST_F(ListView, HandlerMayHideTheListInItsClick) {
    openList({"one", "two"});
    list.Click = [this] { list.Visible = false; };
    test::click(px(110), middleOfRow(0));
    EXPECT_FALSE(test::isShown(list));
    EXPECT_EQ(form.ActiveControl, &card);
}

TEST_F(ListView, DoubleClickComesAsItsOwnEvent) {
    openList({"one", "two"});
    test::doubleClick(px(110), middleOfRow(1));
    EXPECT_EQ(times("list.DblClick"), 1);
    EXPECT_EQ(list.ListIndex, 1);
}

TEST_F(ListView, RightPressTellsTheRowAndSelectsNothing) {
    openList({"one", "two"});
    int pointed = -2;
    list.MouseDown = [&](MouseArguments& mouse) {
        if (mouse.Button == button::right) pointed = list.PointedIndex;
    };
    test::click(px(110), middleOfRow(1), button::right);
    EXPECT_EQ(pointed, 1);
    EXPECT_EQ(list.ListIndex, -1);
    EXPECT_EQ(times("list.Click"), 0);
}

TEST_F(ListView, IndexSetByTheProgramStays) {
    openList({"one", "two", "three"});
    list.ListIndex = 2;
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(list.ListIndex, 2);
    list.List.pop_back();
    test::moveMouse(px(6), px(5));
    EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(ListView, WheelOverTheListNeverReachesTheForm) {
    openList(std::vector<std::string>(20, "row"));
    form.MouseWheel = [this](int, int, int, int) { note("form.MouseWheel"); };
    // Far enough to reach the list's end and go on.
    for (int notch = 0; notch < 20; ++notch) test::turnWheel(-120);
    EXPECT_EQ(log, Log{});
    list.Visible = false;
    test::turnWheel(120);
    EXPECT_EQ(log, Log{"form.MouseWheel"});
}

TEST_F(ListView, DisabledCardLeavesTheListAlone) {
    openList({"one", "two"});
    card.Enabled = false;
    test::click(px(110), middleOfRow(1));
    EXPECT_EQ(list.ListIndex, 1);
}

/// A list whose rows may be wider than it is.
class WideList : public ListTest {
  protected:
    WideList() { list.ScrollsAcross = true; }

    /// The list's rows as they are shown, dark pixels counted.
    [[nodiscard]] static Log shownRows() {
        const Bitmap shown = test::grabWindow();
        Log rows;
        for (int y = 102; y < 150; ++y) {
            std::string row;
            for (int x = 102; x < 290; ++x)
                row += redOf(shown.pixel(x, y).value_or(white)) < 100 ? '#' : '.';
            rows.push_back(row);
        }
        return rows;
    }
};

TEST_F(WideList, LeftAndRightMoveWhatIsTooWideIntoSight) {
    openList({std::string(60, 'i') + std::string(20, 'M'), "second"});
    form.SetFocus(list);
    const Log before = shownRows();
    test::typeKey(key::right);
    const Log moved = shownRows();
    EXPECT_NE(moved, before);
    test::typeKey(key::left);
    EXPECT_EQ(shownRows(), before);
    EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(WideList, OneWithShortRowsHasNoNeedOfIt) {
    openList({"first", "second"});
    form.SetFocus(list);
    const Log before = shownRows();
    test::typeKey(key::right);
    EXPECT_EQ(shownRows(), before);
}

} // namespace
} // namespace window_test
