// The wheel: one event a notch.
#include "fixture.h"
#include "toolkit/testing/test_mouse.h"

namespace window_test {
namespace {

using namespace toolkit;

class WheelTest : public WindowTest {
  protected:
    WheelTest() {
        form.MouseWheel = [this](int /*keys*/, int rotation, int /*x*/, int /*y*/) {
            note(std::to_string(rotation));
        };
    }
};

TEST_F(WheelTest, NotchIsOneEventInItsDirection) {
    test::turnWheel(120);
    test::turnWheel(-120);
    EXPECT_EQ(log, (Log{"120", "-120"}));
}

TEST_F(WheelTest, SmallTurnsAddUpToANotch) {
    for (int turn = 0; turn < 7; ++turn) test::turnWheel(40);
    EXPECT_EQ(log, (Log{"120", "120"}));
    test::turnWheel(80);
    EXPECT_EQ(log.size(), 3U);
}

TEST_F(WheelTest, ManyNotchesAtOnceAreAsManyEvents) {
    test::turnWheel(-360);
    EXPECT_EQ(log, (Log{"-120", "-120", "-120"}));
}

TEST_F(WheelTest, ChangeOfDirectionForgetsTheRest) {
    test::turnWheel(100);
    test::turnWheel(-100);
    EXPECT_EQ(log, Log{});
    test::turnWheel(-20);
    EXPECT_EQ(log, (Log{"-120"}));
}

TEST_F(WheelTest, TurnToTheSideIsNothing) {
    test::turnWheel(0);
    EXPECT_EQ(log, Log{});
}

TEST_F(WheelTest, TurnToTheSideForgetsNothingInEitherDirection) {
    for (const int direction : {1, -1}) {
        log.clear();
        test::turnWheel(80 * direction);
        test::turnWheel(0);
        test::turnWheel(40 * direction);
        EXPECT_EQ(log, Log{std::to_string(120 * direction)});
    }
}

} // namespace
} // namespace window_test
