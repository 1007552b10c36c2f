#include "view/felt.h"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

namespace zev::test {
namespace {

int greenOf(std::uint32_t pixel) { return static_cast<int>(pixel >> 8U & 0xFFU); }

/// The mean step of green between the columns (or rows) of two places.
double meanStep(const toolkit::Bitmap& tile, int from, int to, bool columns) {
    int sum = 0;
    for (int i = 0; i < 324; ++i) {
        const auto first = columns ? tile.row(i)[from] : tile.row(from)[i];
        const auto second = columns ? tile.row(i)[to] : tile.row(to)[i];
        sum += std::abs(greenOf(first) - greenOf(second));
    }
    return sum / 324.0;
}

TEST(Felt, IsOneTileThatNeverChanges) {
    const auto first = feltTile();
    const auto second = feltTile();
    ASSERT_EQ(first.width(), 324);
    ASSERT_EQ(first.height(), 324);
    EXPECT_TRUE(std::equal(first.row(0), first.row(0) + 324 * 324, second.row(0)));
}

TEST(Felt, IsGreenAndQuiet) {
    const auto tile = feltTile();
    for (int i = 0; i < 324 * 324; ++i) {
        const auto pixel = tile.row(0)[i];
        const int red = static_cast<int>(pixel >> 16U & 0xFFU);
        const int blue = static_cast<int>(pixel & 0xFFU);
        ASSERT_GT(greenOf(pixel), red);
        ASSERT_GT(greenOf(pixel), blue);
        ASSERT_LE(std::abs(greenOf(pixel) - 96), 12);
    }
}

TEST(Felt, JoinsUnseenAtItsEdges) {
    const auto tile = feltTile();
    for (const bool columns : {true, false}) {
        const double inside = meanStep(tile, 100, 101, columns);
        EXPECT_GT(inside, 0);
        EXPECT_LT(meanStep(tile, 323, 0, columns), inside * 1.5);
    }
}

} // namespace
} // namespace zev::test
