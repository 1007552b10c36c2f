// A list box on the form.
#include "fixture.h"

#include <chrono>

namespace window_test {
namespace {

using namespace toolkit;

class List : public WindowTest {
  protected:
    /// At 100, 100 of the form, that is at 90, 90 of the card.
    void openList(std::vector<std::string> rows) {
        list.Move(px(100), px(100), px(200), px(100));
        list.Font = {.Name = "Arial", .Size = 9};
        list.List = std::move(rows);
        list.Visible = true;
        window->update();
        log.clear();
    }

    [[nodiscard]] float middleOfRow(int row) const {
        const int height = static_cast<int>(textHeight(list.Font) / px(1));
        return px(91 + row * height + height / 2);
    }
};

TEST_F(List, FocusAloneMakesNoRowCurrent) {
    openList({"one", "two"});
    form.SetFocus(list);
    window->update();
    EXPECT_TRUE(test::hasPlatformFocus(list));
    EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(List, ClickMakesTheRowCurrentAndComesAsAnEvent) {
    openList({"one", "two", "three"});
    int current = -2;
    list.Click = [&] { current = list.ListIndex; };
    test::click(px(110), middleOfRow(1));
    EXPECT_EQ(current, 1);
    EXPECT_EQ(list.ListIndex, 1);
}

TEST_F(List, ClickBelowTheLastRowIsNone) {
    openList({"one"});
    test::click(px(110), middleOfRow(3));
    EXPECT_EQ(times("list.Click"), 0);
    EXPECT_EQ(list.PointedIndex, -1);
}

TEST_F(List, ArrowMovesTheCurrentRowAndClicks) {
    openList({"one", "two", "three"});
    list.ListIndex = 0;
    form.SetFocus(list);
    test::typeKey(key::down);
    EXPECT_EQ(list.ListIndex, 1);
    EXPECT_EQ(times("list.Click"), 1);
    test::typeKey(key::home);
    EXPECT_EQ(list.ListIndex, 0);
}

TEST_F(List, EnterAndEscapeComeAsCharacters) {
    openList({"one"});
    form.SetFocus(list);
    test::typeKey(key::enter);
    test::typeKey(key::escape);
    EXPECT_EQ(times("list.KeyPress 13"), 1);
    EXPECT_EQ(times("list.KeyPress 27"), 1);
}

TEST_F(List, HandlerMayHideTheListInItsClick) {
    openList({"one", "two"});
    list.Click = [this] { list.Visible = false; };
    test::click(px(110), middleOfRow(0));
    EXPECT_FALSE(test::isShown(list));
    EXPECT_EQ(form.ActiveControl, &card);
}

TEST_F(List, DoubleClickComesAsItsOwnEvent) {
    openList({"one", "two"});
    test::doubleClick(px(110), middleOfRow(1));
    EXPECT_EQ(times("list.DblClick"), 1);
    EXPECT_EQ(list.ListIndex, 1);
}

TEST_F(List, RightPressTellsTheRowAndSelectsNothing) {
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

TEST_F(List, IndexSetByTheProgramStays) {
    openList({"one", "two", "three"});
    list.ListIndex = 2;
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(list.ListIndex, 2);
    list.List.pop_back();
    test::moveMouse(px(6), px(5));
    EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(List, DisabledCardLeavesTheListAlone) {
    openList({"one", "two"});
    card.Enabled = false;
    test::click(px(110), middleOfRow(1));
    EXPECT_EQ(list.ListIndex, 1);
}

TEST_F(List, RowsAreAsHighAsALineSoThatAllFit) {
    std::vector<std::string> rows(20, "");
    rows.back() = "HHHH";
    openList(rows);
    list.Height = textHeight(list.Font) * 20 + px(6);
    const Bitmap shown = test::grabWindow();
    int ink = 0;
    const int menuBar = static_cast<int>(form.FrameHeight / px(1));
    const int bottom = menuBar + 100 + static_cast<int>(list.Height / px(1));
    for (int y = bottom - 30; y < bottom - 2; ++y)
        for (int x = 102; x < 140; ++x)
            if (redOf(shown.pixel(x, y).value_or(white)) < 100) ++ink;
    EXPECT_GT(ink, 20);
}

TEST_F(List, ThousandsOfRowsAreThereAtOnce) {
    const std::vector<std::string> rows(5000, "A line of the list");
    openList({});
    const auto start = std::chrono::steady_clock::now();
    list.List = rows;
    list.ListIndex = 0;
    test::settle();
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    EXPECT_LT(spent.count(), 0.5);
    form.SetFocus(list);
    test::typeKey(key::end);
    EXPECT_EQ(list.ListIndex, 4999);
}

} // namespace
} // namespace window_test
