// The mouse pointer over the card: the arrow, and the hand that drags.
#include "painting.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

/// A card that turns the pointer into the hand while a button is down.
class Pointer : public PaintTest {
  protected:
    Pointer() {
        card.MouseDown = [this](MouseArguments&) { card.MousePointer = MousePointer::Hand; };
        card.MouseUp = [this](MouseArguments&) { card.MousePointer = MousePointer::Default; };
    }
    static int paperOf(const Bitmap& picture) {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == white ? 1 : 0;
        return count;
    }
};

TEST_F(Pointer, IsThePlatformsOwnAtFirst) {
    test::moveMouse(px(300), px(200));
    EXPECT_TRUE(test::shownPointer().empty());
}

TEST_F(Pointer, IsAnOpenHandOnceTheCardIsPressed) {
    test::pressMouse(px(300), px(200));
    const Bitmap hand = test::shownPointer();
    ASSERT_EQ(hand.width(), 24);
    ASSERT_EQ(hand.height(), 24);
    EXPECT_EQ(hand.pixel(12, 16), white);
    EXPECT_NE(hand.pixel(12, 22), white);
    test::releaseMouse(px(300), px(200));
}

TEST_F(Pointer, HandClosesWhileItDragsTheCard) {
    test::pressMouse(px(300), px(200));
    const Bitmap open = test::shownPointer();
    test::moveMouse(px(310), px(200), button::left);
    const Bitmap closed = test::shownPointer();
    ASSERT_EQ(closed.width(), 24);
    // Fingers that are bent show less skin.
    EXPECT_LT(paperOf(closed), paperOf(open));
    EXPECT_GT(paperOf(closed), 50);
    test::releaseMouse(px(310), px(200));
}

TEST_F(Pointer, ReleaseGivesTheArrowBack) {
    test::pressMouse(px(300), px(200));
    test::moveMouse(px(310), px(200), button::left);
    test::releaseMouse(px(310), px(200));
    EXPECT_TRUE(test::shownPointer().empty());
    test::pressMouse(px(300), px(200));
    EXPECT_EQ(test::shownPointer().width(), 24);
}

} // namespace
} // namespace window_test
