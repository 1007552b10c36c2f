// The screens and their bar.
#include "fixture.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"
#include "toolkit/window/screen.h"

namespace window_test {
namespace {

using namespace toolkit;

class ScreenTest : public WindowTest {};

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

/// The form is taken to the second screen, which begins 800 to the right and 100 down.
class SecondScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        test::shiftWindow(850, 90);
        test::moveMouse(px(5), px(5));
        log.clear();
    }
};

TEST_F(SecondScreen, SizeIsThatOfTheScreenThatHoldsTheFormsCentre) {
    EXPECT_EQ(screen().Width, px(1000));
    EXPECT_EQ(screen().Height, px(700));
    test::shiftWindow(-850, -90);
    EXPECT_EQ(screen().Width, px(800));
    EXPECT_EQ(screen().Height, px(800));
}

TEST_F(SecondScreen, PlaceOfTheFormIsRelativeToIt) {
    EXPECT_EQ(form.Left, px(50 + 850 - 800));
    EXPECT_EQ(form.Top, px(60 + 90 - 100));
    form.Left = px(30);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(30));
    EXPECT_EQ(screen().Width, px(1000));
    test::shiftWindow(-600, 0);
    test::moveMouse(px(5), px(5));
    EXPECT_EQ(form.Left, px(30 + 800 - 600));
}

TEST_F(SecondScreen, CursorIsToldAndSetRelativeToIt) {
    const CursorPosition seen = cursorPosition();
    EXPECT_EQ(px(seen.x), form.Left + form.FrameWidth / 2 + card.Left + px(5));
    setCursorPosition({17, 18});
    EXPECT_EQ(cursorPosition().x, 17);
    test::shiftWindow(-850, -90);
    EXPECT_EQ(cursorPosition().x, 817);
    EXPECT_EQ(cursorPosition().y, 118);
}

} // namespace
} // namespace window_test
