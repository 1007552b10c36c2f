#include "view/zoom_ladder.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

constexpr std::int16_t highest = 11;

ZoomLadder ladderWithFit(float fit) {
    return {fit,  0.2F,        0.25F, 1.0F / 3.0F, 0.425F, 0.5F,
            0.6F, 2.0F / 3.0F, 0.75F, 0.8F,        0.9F,   1.0F};
}

TEST(ZoomLadder, AFitBetweenTwoStepsLiesBesideBoth) {
    EXPECT_EQ(stepBelowFit(ladderWithFit(0.47F), highest), 4);
    EXPECT_EQ(stepAboveFit(ladderWithFit(0.47F), highest), 5);
}

TEST(ZoomLadder, AFitOnAStepLiesBetweenItsNeighbours) {
    EXPECT_EQ(stepBelowFit(ladderWithFit(0.5F), highest), 4);
    EXPECT_EQ(stepAboveFit(ladderWithFit(0.5F), highest), 6);
    EXPECT_EQ(stepBelowFit(ladderWithFit(1.0F / 3.0F), highest), 2);
    EXPECT_EQ(stepAboveFit(ladderWithFit(2.0F / 3.0F), highest), 8);
}

TEST(ZoomLadder, BeyondTheLadderThereIsNoStep) {
    EXPECT_EQ(stepBelowFit(ladderWithFit(0.1F), highest), std::nullopt);
    EXPECT_EQ(stepBelowFit(ladderWithFit(0.2F), highest), std::nullopt);
    EXPECT_EQ(stepAboveFit(ladderWithFit(1.3F), highest), std::nullopt);
    EXPECT_EQ(stepAboveFit(ladderWithFit(1.0F), highest), std::nullopt);
    EXPECT_EQ(stepBelowFit(ladderWithFit(1.3F), highest), 11);
    EXPECT_EQ(stepAboveFit(ladderWithFit(0.1F), highest), 1);
}

} // namespace
} // namespace zev
