// A text that the player only reads.
#include "fixture.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class Notice : public WindowTest {};

TEST_F(Notice, ShowsOverAllElseWhileItIsVisible) {
    notice.Text = "Please wait";
    notice.BackColor = rgb(10, 200, 10);
    notice.Move(px(100), px(100), px(80), px(40));
    notice.Visible = true;
    window->update();
    const auto hasColor = [] {
        const Bitmap shown = test::grabWindow();
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixel(x, y) == rgb(10, 200, 10)) return true;
        return false;
    };
    EXPECT_TRUE(hasColor());
    notice.Visible = false;
    window->update();
    EXPECT_FALSE(hasColor());
}

} // namespace
} // namespace window_test
