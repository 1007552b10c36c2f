// Place, colours and visibility of edit boxes and lists on the screen.
#include "fixture.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class ControlLooks : public WindowTest {};

TEST_F(ControlLooks, BoxCoversItsPlaceAndTwoPixelsAtEitherSide) {
    card.Picture = std::make_shared<Bitmap>(400, 300, rgb(10, 10, 10));
    openBox("");
    box.SelStart = 0;
    const Bitmap shown = test::grabCard();
    EXPECT_EQ(shown.pixel(18, 39), white);
    EXPECT_EQ(shown.pixel(141, 39), white);
    EXPECT_EQ(shown.pixel(17, 39), rgb(10, 10, 10));
    EXPECT_EQ(shown.pixel(142, 39), rgb(10, 10, 10));
    EXPECT_EQ(shown.pixel(100, 40), rgb(10, 10, 10));
}

TEST_F(ControlLooks, BoxFollowsItsControl) {
    openBox("");
    card.Picture = std::make_shared<Bitmap>(400, 300, rgb(10, 10, 10));
    box.Move(px(200), px(100), px(50), px(20));
    box.BackColor = rgb(255, 255, 160);
    const Bitmap shown = test::grabCard();
    EXPECT_EQ(shown.pixel(240, 119), rgb(255, 255, 160));
    EXPECT_EQ(shown.pixel(240, 120), rgb(10, 10, 10));
    EXPECT_EQ(shown.pixel(100, 30), rgb(10, 10, 10));
}

TEST_F(ControlLooks, LowBoxOverTheCardReachesDownToItsTextsFeet) {
    openBox("");
    card.Picture = std::make_shared<Bitmap>(400, 300, rgb(10, 10, 10));
    box.Font = {.Name = "Arial", .Size = 12};
    box.Move(px(200), px(100), px(50), px(5));
    const int line = 100 + pixelsFromTwips(textAscent(box.Font));
    const Bitmap shown = test::grabCard();
    EXPECT_EQ(shown.pixel(240, line - 1), white);
    EXPECT_EQ(shown.pixel(240, line), rgb(10, 10, 10));
}

TEST_F(ControlLooks, TextTakesTheControlsColour) {
    box.ForeColor = rgb(255, 0, 0);
    box.Font = {.Name = "Arial", .Size = 12, .Bold = true};
    openBox("HHHH");
    box.SelStart = 4;
    const Bitmap shown = test::grabCard();
    int red = 0;
    for (int y = 20; y < 40; ++y)
        for (int x = 20; x < 140; ++x)
            if (shown.pixel(x, y) == rgb(255, 0, 0)) ++red;
    EXPECT_GT(red, 20);
}

} // namespace
} // namespace window_test
