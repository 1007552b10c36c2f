#include "help/description_place.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

/// A form of 800 by 600, with a gap of 4 and texts no narrower than 100; the text takes an area of
/// 20000.
std::optional<DescriptionPlace> place(const DescriptionPlace& menus, float rowTop,
                                      float width = 800, float height = 600) {
    return placeBeside(menus, rowTop, {width, height, 4, 100},
                       [](float textWidth) { return 20000 / textWidth; });
}

void expectPlace(const std::optional<DescriptionPlace>& found, const DescriptionPlace& wanted) {
    ASSERT_TRUE(found.has_value());
    EXPECT_FLOAT_EQ(found->left, wanted.left);
    EXPECT_FLOAT_EQ(found->top, wanted.top);
    EXPECT_FLOAT_EQ(found->width, wanted.width);
    EXPECT_FLOAT_EQ(found->height, wanted.height);
}

TEST(DescriptionPlace, IsRightOfTheMenusLevelWithTheRow) {
    expectPlace(place({10, 0, 290, 300}, 120), {304, 120, 200, 100});
}

TEST(DescriptionPlace, IsLeftOfMenusThatLeaveNoRoomOnTheRight) {
    expectPlace(place({400, 0, 300, 300}, 50), {196, 50, 200, 100});
}

TEST(DescriptionPlace, IsNarrowerAndHigherWhereNoSideIsWideEnough) {
    expectPlace(place({150, 0, 500, 300}, 50), {654, 50, 142, 20000.0F / 142});
    expectPlace(place({160, 0, 500, 300}, 50), {4, 50, 152, 20000.0F / 152});
}

TEST(DescriptionPlace, IsWiderAndLowerInALowForm) {
    expectPlace(place({0, 0, 300, 300}, 0, 800, 60), {304, 0, 492, 20000.0F / 492});
}

TEST(DescriptionPlace, IsBelowMenusThatFillTheForm) {
    expectPlace(place({50, 0, 700, 300}, 50), {4, 304, 792, 20000.0F / 792});
}

TEST(DescriptionPlace, StaysInsideTheForm) {
    expectPlace(place({0, 0, 300, 900}, 590), {304, 496, 200, 100});
    expectPlace(place({0, -40, 300, 100}, -20), {304, 0, 200, 100});
}

TEST(DescriptionPlace, IsNowhereInAFormTooSmallForIt) {
    EXPECT_FALSE(place({0, 0, 300, 300}, 0, 350, 280).has_value());
    EXPECT_FALSE(place({0, 0, 300, 300}, 0, 90, 900).has_value());
    EXPECT_FALSE(place({0, 0, 300, 300}, 0, 800, 40).has_value());
}

TEST(DescriptionPlace, IsNeverUnderTheMenusNorOutsideWhateverTheirPlace) {
    int found = 0;
    for (int at = -2; at <= 16; ++at)
        for (int wide = 1; wide <= 9; ++wide)
            for (int row = 0; row <= 7; ++row) {
                const DescriptionPlace menus{static_cast<float>(50 * at), 0,
                                             static_cast<float>(100 * wide), 400};
                const auto text = place(menus, static_cast<float>(100 * row - 50));
                if (!text) continue;
                ++found;
                EXPECT_TRUE(text->left >= menus.left + menus.width ||
                            text->left + text->width <= menus.left || text->top >= 400);
                EXPECT_GE(text->left, 0);
                EXPECT_GE(text->top, 0);
                EXPECT_LE(text->left + text->width, 800);
                EXPECT_LE(text->top + text->height, 600);
            }
    EXPECT_GT(found, 500);
}

} // namespace
} // namespace zev
