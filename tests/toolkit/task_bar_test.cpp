#include "toolkit/window/qt_task_bar.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

/// The second of two screens.
constexpr QRect whole(1920, 100, 1600, 1200);

void expectBar(const QRect& free, const QRect& expected) {
    const QRect bar = barBeside(whole, free);
    EXPECT_EQ(bar.left(), expected.left());
    EXPECT_EQ(bar.top(), expected.top());
    EXPECT_EQ(bar.width(), expected.width());
    EXPECT_EQ(bar.height(), expected.height());
}

TEST(TaskBarPlace, StripThatIsNotFreeIsTheBar) {
    expectBar(whole.adjusted(0, 0, 0, -40), {1920, 1260, 1600, 40});
    expectBar(whole.adjusted(0, 40, 0, 0), {1920, 100, 1600, 40});
    expectBar(whole.adjusted(60, 0, 0, 0), {1920, 100, 60, 1200});
    expectBar(whole.adjusted(0, 0, -60, 0), {3460, 100, 60, 1200});
}

TEST(TaskBarPlace, ThickerOfTwoIsTheBar) {
    expectBar(whole.adjusted(72, 28, 0, 0), {1920, 100, 72, 1200});
    expectBar(whole.adjusted(0, 28, 0, -48), {1920, 1252, 1600, 48});
    expectBar(whole.adjusted(0, 72, -28, 0), {1920, 100, 1600, 72});
}

TEST(TaskBarPlace, ScreenThatIsFreeHasNone) { EXPECT_TRUE(barBeside(whole, whole).isEmpty()); }

} // namespace
} // namespace toolkit
