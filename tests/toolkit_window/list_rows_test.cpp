// The rows of a list.
#include <chrono>

#include "list_fixture.h"
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

} // namespace
} // namespace window_test
