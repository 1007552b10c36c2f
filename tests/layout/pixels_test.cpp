#include "layout/pixels.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(WholePixels, RoundsToTheNearest) {
    EXPECT_EQ(px(22.4F, 15), 1);
    EXPECT_EQ(px(30, 15), 2);
    EXPECT_EQ(px(37, 15), 2);
}

TEST(WholePixels, TakesHalvesUp) {
    EXPECT_EQ(px(22.5F, 15), 2);
    EXPECT_EQ(px(6.5F, 13), 1);
    EXPECT_EQ(px(6, 12), 1);
}

TEST(WholePixels, KeepsTheDistanceLeftOfTheCard) {
    EXPECT_EQ(px(-7.5F, 15), 0);
    EXPECT_EQ(px(-8, 15), -1);
    EXPECT_EQ(px(-22.5F, 15), -1);
    EXPECT_EQ(px(-23, 15), -2);
}

TEST(WholePixels, GivesBackPixelsThatWereScaled) {
    for (const int twips : {12, 13, 15}) {
        for (const float scale : {0.2F, 0.35F, 0.425F, 0.5F, 0.85F, 1.0F}) {
            for (int pixel = -20; pixel <= 1300; ++pixel) {
                const float place = static_cast<float>(pixel) * scale * static_cast<float>(twips);
                ASSERT_EQ(px(place / scale, twips), static_cast<float>(pixel));
            }
        }
    }
}

TEST(ColorParts, TakesRedFromTheLowByte) {
    const ColorParts parts = PointVals(0x00CE993EU);
    EXPECT_EQ(parts.red, 62);
    EXPECT_EQ(parts.green, 153);
    EXPECT_EQ(parts.blue, 206);
}

} // namespace
} // namespace zev
