#include "view/task_bar.h"

#include "support/form_test.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

class TaskBar : public FormTest {};

TEST_F(TaskBar, ItsPlaceAndSizeAreTheScreens) {
    wireOnly();
    toolkit::overrideScreen(
        {.taskBar = {.Left = 1, .Top = 2, .Width = 3, .Height = 4}, .hasTaskBar = true});
    const auto bar = GetTaskBarSize(form);
    EXPECT_EQ(bar.Left, 1);
    EXPECT_EQ(bar.Top, 2);
    EXPECT_EQ(bar.Width, 3);
    EXPECT_EQ(bar.Height, 4);
    EXPECT_TRUE(traced("GetTaskBarSize"));
}

TEST_F(TaskBar, WhereThereIsNoneItHasNoSize) {
    wireOnly();
    toolkit::overrideScreen({});
    const auto bar = GetTaskBarSize(form);
    EXPECT_EQ(bar.Width, 0);
    EXPECT_EQ(bar.Height, 0);
}

} // namespace
} // namespace zev::test
