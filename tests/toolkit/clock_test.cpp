#include "toolkit/base/clock.h"

#include <ctime>

#include <gtest/gtest.h>

#include "support/system.h"

namespace toolkit {
namespace {

// A place of the world whose clocks are never put forward: 12345 s after midnight of 21 Nov 2026.
class Clock : public testing::Test {
  protected:
    static constexpr double midnight = 1795219200 - 5 * 3600;

    void SetUp() override {
        test_system::setVariable("TZ", "XYZ-5");
        tzset();
    }
    void TearDown() override {
        overrideClock(-1);
        test_system::clearVariable("TZ");
        tzset();
    }
};

TEST_F(Clock, CountsSecondsSinceLocalMidnightWithFractions) {
    overrideClock(midnight + 12345.25);
    EXPECT_DOUBLE_EQ(secondsSinceMidnight(), 12345.25);
}

TEST_F(Clock, WrapsAtMidnight) {
    overrideClock(midnight + 86399.5);
    EXPECT_DOUBLE_EQ(secondsSinceMidnight(), 86399.5);
    overrideClock(midnight + 86400.5);
    EXPECT_DOUBLE_EQ(secondsSinceMidnight(), 0.5);
}

TEST_F(Clock, WritesDateAndTime) {
    overrideClock(midnight + 7 * 3600 + 30 * 60);
    EXPECT_EQ(dateText(), "2026-11-21");
    EXPECT_EQ(timeText(), "07:30:00");
    EXPECT_EQ(dateTimeText(), "2026-11-21 07:30:00");
}

TEST_F(Clock, WritesTheTimeAtMidnightToo) {
    overrideClock(midnight);
    EXPECT_EQ(dateTimeText(), "2026-11-21 00:00:00");
}

TEST_F(Clock, ANegativeOverrideGivesBackTheRealTime) {
    overrideClock(0);
    EXPECT_EQ(dateText(), "1970-01-01");
    overrideClock(-1);
    EXPECT_GT(dateText(), "2024");
}

} // namespace
} // namespace toolkit
