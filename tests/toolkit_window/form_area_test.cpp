// What the form paints behind its controls.
#include "fixture.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/text/draw_text.h"

namespace window_test {
namespace {

using namespace toolkit;

class FormArea : public WindowTest {
  protected:
    /// A pixel of the form's inside, right of and below the card.
    std::optional<Color> inside(const Bitmap& shown, int x, int y) const {
        return shown.pixel(x, y + shown.height() - static_cast<int>(form.ScaleHeight() / px(1)));
    }
};

TEST_F(FormArea, CardMayLieOutsideTheForm) {
    card.Left = -px(100);
    card.Top = -px(50);
    card.Picture = std::make_shared<Bitmap>(400, 300, rgb(1, 2, 3));
    const Bitmap shown = test::grabWindow();
    EXPECT_EQ(inside(shown, 299, 249), rgb(1, 2, 3));
    EXPECT_EQ(inside(shown, 300, 249), form.BackColor);
    EXPECT_EQ(inside(shown, 299, 250), form.BackColor);
}

TEST_F(FormArea, BackgroundIsTiledBelowItsOffset) {
    auto tile = std::make_shared<Bitmap>(10, 10, rgb(10, 20, 30));
    tile->setPixel(0, 0, rgb(200, 0, 0));
    form.Background = {.backdrop = Backdrop::Tiles, .tile = tile, .tileScale = 1, .yOffset = px(5)};
    const Bitmap shown = test::grabWindow();
    EXPECT_EQ(inside(shown, 420, 335), rgb(200, 0, 0));
    EXPECT_EQ(inside(shown, 421, 335), rgb(10, 20, 30));
    EXPECT_EQ(inside(shown, 420, 345), rgb(200, 0, 0));
    EXPECT_EQ(inside(shown, 450, 4), form.BackColor);
    EXPECT_EQ(inside(shown, 451, 5), rgb(10, 20, 30));
}

TEST_F(FormArea, GradientRunsFromTopToBottomOfThePresentSize) {
    form.Background = {
        .backdrop = Backdrop::Gradient, .top = rgb(208, 224, 255), .bottom = rgb(144, 154, 255)};
    const Bitmap shown = test::grabWindow();
    const int height = static_cast<int>(form.ScaleHeight() / px(1));
    EXPECT_EQ(inside(shown, 500, 0), rgb(208, 224, 255));
    const Color half = inside(shown, 500, height / 2).value_or(black);
    EXPECT_NEAR(redOf(half), 176, 1);
    EXPECT_NEAR(greenOf(half), 189, 1);
    EXPECT_EQ(blueOf(half), 255);
    EXPECT_NEAR(redOf(inside(shown, 500, height - 1).value_or(black)), 144, 1);
}

TEST_F(FormArea, TextStandsInTheBottomLeftCorner) {
    form.Background.text = "HHHH";
    const Bitmap shown = test::grabWindow();
    const FontSpec font{.Name = "Arial", .Size = 8, .Bold = true};
    Bitmap expected(100, 40, form.BackColor);
    const int height = pixelsFromTwips(textHeight(font));
    drawText(expected, 2, static_cast<float>(40 - height - 2), font, black, "HHHH");
    int ink = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 100; ++x) {
            const auto below = shown.pixel(x, shown.height() - 40 + y);
            ASSERT_EQ(below, expected.pixel(x, y)) << x << ' ' << y;
            if (below != form.BackColor) ++ink;
        }
    EXPECT_GT(ink, 50);
}

TEST_F(FormArea, HintStandsInTheMiddleBehindTheCard) {
    card.Picture = std::make_shared<Bitmap>(400, 300, rgb(1, 2, 3));
    form.Hint = "HHHH";
    EXPECT_EQ(inside(test::grabWindow(), 320, 220), rgb(1, 2, 3));
    card.Top = -px(300);
    const Bitmap shown = test::grabWindow();
    const int top = shown.height() - static_cast<int>(form.ScaleHeight() / px(1));
    int left = shown.width();
    int right = 0;
    int highest = shown.height();
    int lowest = 0;
    for (int y = 0; y < shown.height() - top; ++y)
        for (int x = 0; x < shown.width(); ++x)
            if (inside(shown, x, y) == black) {
                left = std::min(left, x);
                right = std::max(right, x);
                highest = std::min(highest, y);
                lowest = std::max(lowest, y);
            }
    EXPECT_GT(right - left, 30);
    EXPECT_NEAR(left + right, shown.width(), 4);
    EXPECT_NEAR(highest + lowest, shown.height() - top, 8);
    EXPECT_EQ(inside(shown, left - 3, highest), rgb(255, 255, 225));
    form.Hint.clear();
    EXPECT_EQ(inside(test::grabWindow(), left - 3, highest), form.BackColor);
}

} // namespace
} // namespace window_test
