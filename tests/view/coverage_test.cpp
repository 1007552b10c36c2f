#include "view/coverage.h"

#include <numeric>

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(Coverage, WeightsOfAPixelAreOneTogether) {
    for (const double factor : {0.13, 0.4, 0.5, 2.0 / 3, 0.85, 0.99}) {
        const Coverage coverage = coverageOf(1000, factor, 1000);
        for (int i = 0; i < coverage.size(); ++i) {
            const float* first = coverage.weightsOf(i);
            EXPECT_NEAR(std::accumulate(first, first + coverage.reach, 0.0), 1, 1e-6)
                << factor << " at " << i;
        }
    }
}

TEST(Coverage, CountsWhatLiesBelowAPixel) {
    const Coverage half = coverageOf(10, 0.5, 5);
    ASSERT_EQ(half.size(), 5);
    EXPECT_EQ(half.firsts[3], 6);
    EXPECT_EQ(half.countOf(3), 2);
    EXPECT_FLOAT_EQ(half.weightsOf(3)[0], 0.5F);
    EXPECT_FLOAT_EQ(half.weightsOf(3)[1], 0.5F);
}

TEST(Coverage, PartOfAPixelWeighsAsMuchAsIsBelow) {
    const Coverage coverage = coverageOf(5, 0.4, 2); // 2.5 input pixels below each
    ASSERT_EQ(coverage.size(), 2);
    EXPECT_EQ(coverage.firsts[1], 2);
    EXPECT_EQ(coverage.countOf(1), 3);
    EXPECT_FLOAT_EQ(coverage.weightsOf(1)[0], 0.2F);
    EXPECT_FLOAT_EQ(coverage.weightsOf(1)[2], 0.4F);
}

TEST(Coverage, NeverLooksPastTheLastPixel) {
    for (const double factor : {0.2, 1.0 / 3, 0.61, 0.9}) {
        const Coverage coverage = coverageOf(83, factor, 83);
        for (int i = 0; i < coverage.size(); ++i)
            EXPECT_LE(coverage.firsts[static_cast<std::size_t>(i)] + coverage.countOf(i), 83)
                << factor;
    }
}

TEST(Coverage, FullSizeTakesEachPixelForItself) {
    const Coverage coverage = coverageOf(7, 1, 7);
    EXPECT_EQ(coverage.reach, 1);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(coverage.firsts[static_cast<std::size_t>(i)], i);
}

TEST(Coverage, IsCutAtTheOutputsEnd) { EXPECT_EQ(coverageOf(100, 0.5, 20).size(), 20); }

} // namespace
} // namespace zev
