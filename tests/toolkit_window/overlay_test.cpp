// A text that the player only reads.
#include "fixture.h"
#include "toolkit/testing/test_accessible.h"
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

/// How many lines of ink stand between the box's frame's sides.
int inkLines(Color ground) {
    const Bitmap shown = test::grabWindow();
    int lines = 0;
    bool wasInk = false;
    for (int y = 0; y < shown.height(); ++y) {
        // The box begins at 10, 10 of the form and its text five pixels further on.
        if (shown.pixel(12, y) != ground) continue;
        bool isInk = false;
        for (int x = 15; x < 100; ++x) isInk = isInk || shown.pixel(x, y) != ground;
        if (isInk && !wasInk) ++lines;
        wasInk = isInk;
    }
    return lines;
}

TEST_F(Overlay, BreaksTheTextIntoLinesWhereItSaysSo) {
    overlay.Text = "mmmmm mmmmm mmmmm mmmmm";
    overlay.BackColor = rgb(255, 255, 225);
    overlay.Font = {.Name = "Arial", .Size = 9};
    overlay.MultiLine = true;
    overlay.Margin = 5;
    const float room = textWidth(overlay.Font, "mmmmm mmmmm");
    overlay.Move(px(10), px(10), room + px(11), px(100));
    overlay.Visible = true;
    window->update();
    EXPECT_EQ(inkLines(overlay.BackColor), 2);
    overlay.Width = room + px(9);
    window->update();
    EXPECT_EQ(inkLines(overlay.BackColor), 4);
    overlay.Text = "mmmmm";
    window->update();
    EXPECT_EQ(inkLines(overlay.BackColor), 1);
}

TEST_F(Overlay, IsANoticeToScreenReadersIfItSaysSo) {
    overlay.Text = "Please wait";
    overlay.IsNotice = true;
    overlay.Visible = true;
    window->update();
    EXPECT_EQ(test::accessiblePart("Please wait").role, "notice");
    EXPECT_TRUE(test::accessiblePart("Please wait").isShown);
}

TEST_F(Overlay, IsATipIfItIsNoNotice) {
    overlay.Text = "what the row does";
    overlay.Visible = true;
    window->update();
    EXPECT_EQ(test::accessiblePart("what the row does").role, "tip");
}

} // namespace
} // namespace window_test
