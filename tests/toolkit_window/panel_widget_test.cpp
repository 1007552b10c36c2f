// Panels on the form.
#include "painting.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class PanelWidget : public PaintTest {
  protected:
    PanelWidget() {
        panel.Move(px(420), px(50), px(150), px(100));
        panel.BackColor = red;
        panel.Visible = true;
    }
    [[nodiscard]] std::optional<Color> inside(int x, int y) const {
        const Bitmap shown = test::grabWindow();
        return shown.pixel(x, y + shown.height() - static_cast<int>(form.ScaleHeight() / px(1)));
    }
};

TEST_F(PanelWidget, ItsColorFillsItsPlace) {
    EXPECT_EQ(inside(420, 50), red);
    EXPECT_EQ(inside(569, 149), red);
    EXPECT_EQ(inside(419, 50), form.BackColor);
    EXPECT_EQ(inside(570, 149), form.BackColor);
}

TEST_F(PanelWidget, HiddenItShowsNothing) {
    panel.Visible = false;
    EXPECT_EQ(inside(500, 100), form.BackColor);
    EXPECT_FALSE(test::isShown(panel));
}

TEST_F(PanelWidget, RoundedCornersAreFreeAndTheirEdgesStayFull) {
    panel.CornerRadius = 10;
    EXPECT_EQ(inside(420, 50), form.BackColor);
    EXPECT_EQ(inside(569, 149), form.BackColor);
    EXPECT_EQ(inside(431, 50), red);
    EXPECT_EQ(inside(420, 61), red);
}

TEST_F(PanelWidget, OnAPlainFormTheGradientIsItsColor) {
    panel.Fill = PanelFill::FormGradient;
    EXPECT_EQ(inside(500, 100), red);
}

TEST_F(PanelWidget, TheFormsGradientGoesOnLineByLine) {
    panel.Fill = PanelFill::FormGradient;
    form.Background = {.backdrop = Backdrop::Gradient, .top = rgb(255, 0, 0), .bottom = blue};
    for (int y = 45; y < 155; ++y) EXPECT_EQ(inside(500, y), inside(600, y)) << y;
    panel.Move(px(420), px(90));
    EXPECT_EQ(inside(500, 91), inside(600, 91));
}

TEST_F(PanelWidget, ItSwallowsPressesAndLiesWhereItsStackSays) {
    panel.Move(px(20), px(20));
    panel.Stack = 1;
    test::click(px(50), px(50));
    EXPECT_EQ(times("card.Click"), 0);
    EXPECT_EQ(inside(50, 50), red);
    panel.Stack = -1;
    card.Stack = 0;
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    EXPECT_EQ(inside(50, 50), grey);
    test::click(px(50), px(50));
    EXPECT_EQ(times("card.Click"), 1);
}

} // namespace
} // namespace window_test
