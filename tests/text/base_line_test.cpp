#include "text/base_line.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

constexpr DesignPixel half{.ofFields = 15, .ofPrint = 15};

TEST(BaselineOverRule, MayStandFromTheRuleToADesignPixelAbove) {
    const auto line = baselineOverRule(20 * 15 + 4, half);
    EXPECT_EQ(line.Wanted, 0);
    EXPECT_FLOAT_EQ(line.Highest, -4);
    EXPECT_FLOAT_EQ(line.Lowest, 11);
}

TEST(BaselineOverRule, TextOnItsRuleStandsThere) {
    EXPECT_FLOAT_EQ(baselineOverRule(20 * 15, half).Lowest, 0);
    EXPECT_NEAR(baselineOverRule(20 * 15 + 0.01F, half).Lowest, 0, 0.02F);
}

TEST(BaselineOverRule, FollowsThePrintWhereFieldsAreOffByATrifle) {
    const auto line = baselineOverRule(1000.25F * 6, {.ofFields = 6, .ofPrint = 6.003F});
    EXPECT_NEAR(line.Lowest, 0.75F * 6 + 1001 * 0.003F, 0.01F);
    EXPECT_NEAR(line.Lowest - line.Highest, 6.003F, 0.01F);
}

TEST(BaselineOverRule, CardWithoutASizeHasNoRules) {
    EXPECT_EQ(baselineOverRule(100, {}), toolkit::Baseline{});
}

} // namespace
} // namespace zev
