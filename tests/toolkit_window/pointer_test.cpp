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

/// The I-beam over texts, and the hand over bare card from 200 pixels on.
class PointerOver : public Pointer {
  protected:
    PointerOver() {
        pointerOver = [this](const ControlArray<Label>* group, float X, float Y) {
            asked = {X, Y};
            if (group == &texts) return MousePointer::IBeam;
            return group == nullptr && X >= px(200) ? MousePointer::Hand : MousePointer::Default;
        };
        place(texts[1], 50, 50, 100, 20);
        place(marks[1], 250, 50, 20, 20);
        place(stamp, 300, 250, 50, 20);
    }
    [[nodiscard]] static bool showsHand() { return test::shownPointer().width() == 24; }
    [[nodiscard]] static bool showsArrow() { return !showsHand() && !test::showsIBeam(); }

    test::PointOnCard asked;
};

TEST_F(PointerOver, IsAnIBeamOverATextAndAHandOverWhatDrags) {
    test::moveMouse(px(60), px(60));
    EXPECT_TRUE(test::showsIBeam());
    test::moveMouse(px(300), px(200));
    EXPECT_TRUE(showsHand());
    EXPECT_EQ(asked.x, px(300));
    EXPECT_EQ(asked.y, px(200));
    test::moveMouse(px(100), px(200));
    EXPECT_TRUE(showsArrow());
}

TEST_F(PointerOver, LabelsThatSwallowPressesAndOtherLabelsHaveTheArrow) {
    test::moveMouse(px(310), px(260));
    EXPECT_TRUE(showsArrow());
    test::moveMouse(px(260), px(60));
    EXPECT_TRUE(showsArrow());
}

TEST_F(PointerOver, IsReckonedAnewWhenTheCardMovesBelowIt) {
    test::moveMouse(px(60), px(60));
    card.Move(card.Left, card.Top - px(20));
    window->update();
    EXPECT_TRUE(showsArrow());
    card.Move(card.Left, card.Top + px(20));
    EXPECT_TRUE(test::showsIBeam());
}

TEST_F(PointerOver, OneThatCardOrFormHasSetIsLeftAlone) {
    card.MousePointer = MousePointer::Hand;
    test::moveMouse(px(60), px(60));
    EXPECT_TRUE(showsHand());
    card.MousePointer = MousePointer::Default;
    form.MousePointer = MousePointer::Hourglass;
    window->update();
    EXPECT_TRUE(showsArrow());
}

TEST_F(PointerOver, ACardThatCannotBeUsedHasTheArrow) {
    card.Enabled = false;
    test::moveMouse(px(60), px(60));
    EXPECT_TRUE(showsArrow());
}

TEST_F(PointerOver, APressedTextKeepsItsOwn) {
    test::pressMouse(px(60), px(60));
    test::moveMouse(px(300), px(200), button::left);
    EXPECT_TRUE(test::showsIBeam());
    test::releaseMouse(px(300), px(200));
    EXPECT_TRUE(showsHand());
}

TEST_F(PointerOver, APressThatDragsNothingShowsNoHand) {
    card.MouseDown = {};
    test::pressMouse(px(300), px(200));
    EXPECT_TRUE(showsArrow());
    test::moveMouse(px(310), px(200), button::left);
    EXPECT_TRUE(showsArrow());
    test::releaseMouse(px(310), px(200));
    EXPECT_TRUE(showsHand());
}

} // namespace
} // namespace window_test
