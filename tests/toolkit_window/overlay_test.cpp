// A text that the player only reads.
#include "fixture.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class Overlay : public WindowTest {};

TEST_F(Overlay, ShowsOverAllElseWhileItIsVisible) {
    overlay.Text = "Please wait";
    overlay.BackColor = rgb(10, 200, 10);
    overlay.Move(px(100), px(100), px(80), px(40));
    overlay.Visible = true;
    window->update();
    const auto hasColor = [] {
        const Bitmap shown = test::grabWindow();
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixel(x, y) == rgb(10, 200, 10)) return true;
        return false;
    };
    EXPECT_TRUE(hasColor());
    overlay.Visible = false;
    window->update();
    EXPECT_FALSE(hasColor());
}

} // namespace
} // namespace window_test
