// Place, size and frame of the form.
#include "fixture.h"

namespace window_test {
namespace {

using namespace toolkit;

class FormPlace : public WindowTest {};

TEST_F(FormPlace, OuterSizeIsTheInsideAndTheFrame) {
    const Bitmap shown = test::grabWindow();
    EXPECT_EQ(px(shown.width()), form.Width - form.FrameWidth);
    EXPECT_EQ(form.ScaleWidth(), px(shown.width()));
    EXPECT_LT(form.ScaleHeight(), px(shown.height()) + 1);
}

TEST_F(FormPlace, ValuesStayExactlyAsSet) {
    form.Left = px(33) + 4;
    form.Width = px(500) + 7;
    test::settle();
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(33) + 4);
    EXPECT_EQ(form.Width, px(500) + 7);
    EXPECT_EQ(test::grabWindow().width(), 500 - static_cast<int>(form.FrameWidth / px(1)));
}

TEST_F(FormPlace, SizeGivenByThePlayerGoesIntoTheValues) {
    test::resizeWindow(20, 10);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Width, px(660));
    EXPECT_EQ(form.Height, px(490));
    EXPECT_EQ(form.Left, px(50));
}

TEST_F(FormPlace, PlaceGivenByThePlayerGoesIntoTheValues) {
    test::shiftWindow(7, -3);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(57));
    EXPECT_EQ(form.Top, px(57));
    EXPECT_EQ(form.Width, px(640));
}

} // namespace
} // namespace window_test
