// Twips, pixels, the screen and its bar.
#include "fixture.h"

namespace window_test {
namespace {

using namespace toolkit;

class ScreenTest : public WindowTest {};

TEST_F(ScreenTest, TwipsAreRoundedToPixelsHalvesToEven) {
    overrideScreen({.twipsPerPixel = 10});
    EXPECT_EQ(pixelsFromTwips(14), 1);
    EXPECT_EQ(pixelsFromTwips(15), 2);
    EXPECT_EQ(pixelsFromTwips(25), 2);
    EXPECT_EQ(pixelsFromTwips(-15), -2);
    EXPECT_EQ(pixelsFromTwips(-25), -2);
    EXPECT_EQ(pixelsFromTwips(-14), -1);
}

TEST_F(ScreenTest, ScreenIsMeasuredInTwips) {
    const Screen found = screen();
    EXPECT_GT(found.Width, px(300));
    EXPECT_EQ(found.TwipsPerPixelX, px(1));
    overrideScreen({.width = 1000, .height = 800});
    EXPECT_EQ(screen().Width, 1000);
    EXPECT_EQ(screen().Height, 800);
}

TEST_F(ScreenTest, TaskBarForTestsIsGiven) {
    overrideScreen({.taskBar = {0, 570, 800, 30}, .hasTaskBar = true});
    EXPECT_EQ(taskBar().Top, 570);
    EXPECT_EQ(taskBar().Height, 30);
}

} // namespace
} // namespace window_test
