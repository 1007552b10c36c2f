#include "cards/progress.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(ProgressText, BeginsWithoutARate) {
    EXPECT_EQ(progressText({.done = 0, .all = 8, .seconds = 3}), "[                        ] 0/8");
}

TEST(ProgressText, TellsCountRateAndTimeLeft) {
    EXPECT_EQ(progressText({.done = 250, .all = 1000, .seconds = 2.5}),
              "[======                  ] 250/1000  100/s  0:08 left");
    EXPECT_EQ(progressText({.done = 10, .all = 1000, .seconds = 20}),
              "[                        ] 10/1000  0.5/s  33:00 left");
    EXPECT_EQ(progressText({.done = 1, .all = 3601, .seconds = 2}),
              "[                        ] 1/3601  0.5/s  2:00:00 left");
}

TEST(ProgressText, EndsWithAFullBar) {
    EXPECT_EQ(progressText({.done = 20, .all = 20, .seconds = 10}),
              "[========================] 20/20  2.0/s");
}

TEST(ProgressText, StaysOnOneLine) {
    EXPECT_LE(progressText({.done = 123456, .all = 1000000, .seconds = 1234567}).size(), 70U);
}

} // namespace
} // namespace zev
