// Place, size and frame of the form.
#include <array>

#include "fixture.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"

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

TEST_F(FormPlace, InsideStaysAsSetWhenTheRealFrameBecomesKnown) {
    const float inside = form.ScaleWidth();
    const float insideHeight = form.ScaleHeight();
    test::settle();
    test::moveMouse(px(5), px(5));
    EXPECT_GT(form.FrameWidth, 0);
    EXPECT_EQ(form.ScaleWidth(), inside);
    EXPECT_EQ(form.ScaleHeight(), insideHeight);
    EXPECT_EQ(px(test::grabWindow().width()), inside);
}

TEST_F(FormPlace, FrameDoesNotMakeTheFormLargerThanTheScreen) {
    overrideScreen({.width = form.Width + px(1), .height = form.Height});
    test::settle();
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Width, px(641));
    EXPECT_EQ(form.Height, px(480));
}

TEST_F(FormPlace, ValuesStayExactlyAsSet) {
    test::settle();
    test::moveMouse(px(5), px(5));
    form.Left = px(33) + 4;
    form.Width = px(500) + 7;
    test::settle();
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(33) + 4);
    EXPECT_EQ(form.Width, px(500) + 7);
    EXPECT_EQ(test::grabWindow().width(), 500 - static_cast<int>(form.FrameWidth / px(1)));
}

TEST_F(FormPlace, SizeGivenByThePlayerGoesIntoTheValues) {
    form.Left = px(50) + 3;
    test::settle();
    const float width = form.Width;
    const float height = form.Height;
    test::resizeWindow(20, 10);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Width, width + px(20));
    EXPECT_EQ(form.Height, height + px(10));
    EXPECT_EQ(form.Left, px(50) + 3);
}

TEST_F(FormPlace, PlaceGivenByThePlayerGoesIntoTheValues) {
    test::settle();
    const float width = form.Width;
    test::shiftWindow(7, -3);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(57));
    EXPECT_EQ(form.Top, px(57));
    EXPECT_EQ(form.Width, width);
}

TEST_F(FormPlace, PlaceAndSizeAreGivenAtOnce) {
    EXPECT_EQ(test::countPlaces([this] {
                  form.Left += px(7);
                  form.Top += px(5);
                  form.Width += px(20);
                  form.Height -= px(10);
                  window->update();
              }),
              1);
    EXPECT_EQ(px(test::grabWindow().width()), form.ScaleWidth());
}

TEST_F(FormPlace, WindowTakenBackFromTheWholeScreenIsWhereItWas) {
    test::settle();
    test::moveMouse(px(5), px(5));
    const auto place = [this] { return std::array{form.Left, form.Top, form.Width, form.Height}; };
    const auto before = place();
    const int width = test::grabWindow().width();
    for (const test::Extent extent : {test::Extent::FullScreen, test::Extent::Maximised}) {
        test::changeExtent(extent);
        window->update();
        EXPECT_NE(place(), before);
        test::changeExtent(test::Extent::Normal);
        window->update();
        EXPECT_EQ(place(), before);
        EXPECT_EQ(test::grabWindow().width(), width);
    }
}

TEST_F(FormPlace, WindowThatFillsTheScreenSaysSo) {
    EXPECT_FALSE(form.FillsScreen);
    for (const test::Extent extent : {test::Extent::Maximised, test::Extent::FullScreen}) {
        test::changeExtent(extent);
        window->update();
        EXPECT_TRUE(form.FillsScreen);
        EXPECT_EQ(px(test::grabWindow().width()), form.ScaleWidth());
        test::changeExtent(test::Extent::Normal);
        window->update();
        EXPECT_FALSE(form.FillsScreen);
    }
}

} // namespace
} // namespace window_test
