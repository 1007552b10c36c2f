// The colours of the form's gradient.
#include <cmath>

#include "fixture.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class Gradient : public WindowTest {
  protected:
    [[nodiscard]] Color lineAt(int y) const {
        const Bitmap shown = test::grabWindow();
        return shown.pixel(600, y + shown.height() - height()).value_or(0);
    }
    [[nodiscard]] int height() const { return static_cast<int>(form.ScaleHeight() / px(1)); }
};

TEST_F(Gradient, EachLineIsItsShareOfTheWayToTheNearestWholeNumber) {
    form.Background = {
        .backdrop = Backdrop::Gradient, .top = rgb(0, 200, 50), .bottom = rgb(100, 0, 50)};
    for (const int y : {0, 1, 17, 100, 333}) {
        const float share = static_cast<float>(y) / static_cast<float>(height());
        EXPECT_EQ(redOf(lineAt(y)), std::lround(100 * share)) << y;
        EXPECT_EQ(greenOf(lineAt(y)), std::lround(200 - 200 * share)) << y;
        EXPECT_EQ(blueOf(lineAt(y)), 50) << y;
    }
}

TEST_F(Gradient, ItRunsTheWholeWidth) {
    form.Background = {.backdrop = Backdrop::Gradient, .top = white, .bottom = black};
    const Bitmap shown = test::grabWindow();
    for (const int y : {320, 470})
        EXPECT_EQ(shown.pixel(0, shown.height() - height() + y),
                  shown.pixel(shown.width() - 1, shown.height() - height() + y));
}

} // namespace
} // namespace window_test
