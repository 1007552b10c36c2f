#include "toolkit/base/color.h"

#include <gtest/gtest.h>

#include "toolkit/failure_of.h"

namespace toolkit {
namespace {

TEST(Color, RedIsTheLowByte) {
    EXPECT_EQ(rgb(195, 17, 25), 195U + 17U * 256U + 25U * 65536U);
    const Color color = rgb(1, 2, 3);
    EXPECT_EQ(redOf(color), 1);
    EXPECT_EQ(greenOf(color), 2);
    EXPECT_EQ(blueOf(color), 3);
}

TEST(Color, TheFixedPaletteHasDarkThenLightColours) {
    EXPECT_EQ(qbColor(0), black);
    EXPECT_EQ(qbColor(1), rgb(0, 0, 128));
    EXPECT_EQ(qbColor(4), rgb(128, 0, 0));
    EXPECT_EQ(qbColor(7), rgb(192, 192, 192));
    EXPECT_EQ(qbColor(12), rgb(255, 0, 0));
    EXPECT_EQ(qbColor(14), rgb(255, 255, 0));
    EXPECT_EQ(qbColor(15), white);
}

TEST(Color, AnIndexOutsideThePaletteFails) {
    EXPECT_EQ(test::failureOf([] { (void)qbColor(-1); }), 5);
    EXPECT_EQ(test::failureOf([] { (void)qbColor(16); }), 5);
}

} // namespace
} // namespace toolkit
