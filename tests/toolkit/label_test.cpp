#include "toolkit/model/label.h"

#include <limits>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(Label, ADoubledAmpersandPaintsOne) { EXPECT_EQ(paintedText("a&&b"), "a&b"); }

TEST(Label, ASingleAmpersandPaintsNothing) {
    EXPECT_EQ(paintedText("a&b"), "ab");
    EXPECT_EQ(paintedText("ab&"), "ab");
    EXPECT_EQ(paintedText("&"), "");
}

TEST(Label, AmpersandsPairFromTheLeft) {
    EXPECT_EQ(paintedText("&&&x"), "&x");
    EXPECT_EQ(paintedText("&&&&"), "&&");
}

TEST(Label, TextWithoutAmpersandIsPaintedAsItIs) { EXPECT_EQ(paintedText("1\xA0NT"), "1\xA0NT"); }

TEST(PaintedLine, IsTheNearestRowWithinItsLimits) {
    EXPECT_EQ(paintedLine(10.4, 9, 11), 10);
    EXPECT_EQ(paintedLine(10.6, 9, 11), 11);
    EXPECT_EQ(paintedLine(10.6, 9, 10.8), 10);
    EXPECT_EQ(paintedLine(10.4, 10.2, 12), 11);
    EXPECT_EQ(paintedLine(8, 10.2, 12), 11);
}

TEST(PaintedLine, WithoutLimitsIsTheNearestRow) {
    constexpr double unlimited = std::numeric_limits<double>::infinity();
    EXPECT_EQ(paintedLine(10.4, -unlimited, unlimited), 10);
    EXPECT_EQ(paintedLine(-0.6, -unlimited, unlimited), -1);
}

TEST(PaintedLine, BetweenTwoRowsKeepsToTheLimitNearestToARow) {
    EXPECT_EQ(paintedLine(10, 10.25, 10.5), 10.25);
    EXPECT_EQ(paintedLine(10, 10.5, 10.875), 10.875);
}

TEST(PaintedLine, LimitOnARowTakesThatRowThoughItIsOffByATrifle) {
    EXPECT_EQ(paintedLine(10.4, 10.001, 10.5), 10);
    EXPECT_EQ(paintedLine(10.4, 10.3, 10.999), 11);
}

} // namespace
} // namespace toolkit
