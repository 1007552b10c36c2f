// A text that the player only reads.
#include "fixture.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/text/font.h"

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

/// How many columns of the window the text takes, `ground` being what it stands on.
int inkWidth(Color ground) {
    constexpr int beforeText = 15;
    const Bitmap shown = test::grabWindow();
    int left = shown.width();
    int right = -1;
    for (int y = 0; y < shown.height(); ++y) {
        // A row above the box, below it or of its frame.
        if (shown.pixel(beforeText, y) != ground) continue;
        for (int x = beforeText; x < shown.width() && x < 385; ++x)
            if (shown.pixel(x, y) != ground) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
    }
    return right - left + 1;
}

TEST_F(Overlay, IsPaintedInTheFontThatItWasMeasuredIn) {
    overlay.Text = "HHHHHHHHHH";
    overlay.BackColor = rgb(10, 200, 10);
    overlay.Move(px(10), px(10), px(380), px(80));
    overlay.Visible = true;
    for (const float size : {8.25F, 20.0F}) {
        overlay.Font = {.Name = "Arial", .Size = size, .Bold = true};
        window->update();
        // The strokes begin and end a little inside of the letters' places.
        const float width = textWidth(overlay.Font, overlay.Text) / px(1);
        EXPECT_NEAR(static_cast<float>(inkWidth(overlay.BackColor)), width, width / 20) << size;
    }
}

} // namespace
} // namespace window_test
