// The rows of a list.
#include <chrono>

#include "list_fixture.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

using ListRows = ListTest;

TEST_F(ListRows, RowsAreAsHighAsALineSoThatAllFit) {
    std::vector<std::string> rows(20, "");
    rows.back() = "HHHH";
    openList(rows);
    list.Height = textHeight(list.Font) * 20 + px(6);
    const Bitmap shown = test::grabWindow();
    int ink = 0;
    const int inside = shown.height() - static_cast<int>(form.ScaleHeight() / px(1));
    const int bottom = inside + 100 + static_cast<int>(list.Height / px(1));
    for (int y = bottom - 20; y < bottom - 4; ++y)
        for (int x = 102; x < 140; ++x)
            if (redOf(shown.pixel(x, y).value_or(white)) < 100) ++ink;
    EXPECT_GT(ink, 20);
}

TEST_F(ListRows, ThousandsOfRowsAreThereAtOnce) {
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

TEST_F(ListRows, RowThatIsTooWideEndsInThreeDots) {
    const std::string name(60, 'm');
    openList({name});
    list.RowGap = 6;
    // The last letters before the list's edge.
    const auto shownRow = [&] {
        const Bitmap shown = test::grabWindow();
        const int top = shown.height() - static_cast<int>(form.ScaleHeight() / px(1)) + 100;
        Log columns;
        for (int x = 102; x < 299; ++x) {
            std::string column;
            for (int y = top + 2; y < top + 22; ++y)
                column += redOf(shown.pixel(x, y).value_or(white)) < 160 ? '#' : ' ';
            columns.push_back(column);
        }
        return columns;
    };
    const Log cut = shownRow();
    list.Elides = true;
    const Log elided = shownRow();
    EXPECT_NE(elided, cut);
    std::string asShown = name;
    while (textWidth(list.Font, asShown + "...") > px(198 - 2 * 5)) asShown.pop_back();
    list.List = {asShown + "..."};
    EXPECT_EQ(shownRow(), elided);
    // Nothing is painted up to the edge.
    EXPECT_EQ(elided.back(), std::string(20, ' '));
    EXPECT_EQ(list.List.front(), asShown + "...");
}

TEST_F(ListRows, RowThatFitsIsNotElided) {
    openList({"Adams"});
    list.Elides = true;
    const auto tip = [&](int row) { return test::toolTipAt(list, test::pointOnRow(list, row)); };
    EXPECT_EQ(tip(0), "");
    list.List = {std::string(60, 'm'), "<b>" + std::string(60, 'm'), "Brown"};
    EXPECT_EQ(tip(0), std::string(60, 'm'));
    EXPECT_EQ(tip(1), "<span>&lt;b&gt;" + std::string(60, 'm') + "</span>");
    EXPECT_EQ(tip(2), "");
    list.Elides = false;
    EXPECT_EQ(tip(0), "");
}

TEST_F(ListRows, ListTooNarrowForTheDotsShowsThemAllTheSame) {
    openList({"Adams"});
    list.Elides = true;
    list.Width = px(8);
    window->update();
    EXPECT_TRUE(test::isShown(list));
    EXPECT_EQ(test::toolTipAt(list, test::pointOnRow(list, 0)), "Adams");
}

} // namespace
} // namespace window_test
