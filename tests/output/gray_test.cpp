#include "output/gray.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

toolkit::Color grayOf(toolkit::Color color) {
    return grayed(toolkit::Bitmap(1, 1, color)).pixel(0, 0).value();
}

TEST(Gray, BlackAndWhiteStay) {
    EXPECT_EQ(grayOf(toolkit::black), toolkit::black);
    EXPECT_EQ(grayOf(toolkit::white), toolkit::white);
}

TEST(Gray, ColoursBecomeLightShades) {
    for (const auto color : {toolkit::rgb(195, 17, 25), toolkit::rgb(62, 153, 206)}) {
        const auto gray = grayOf(color);
        EXPECT_EQ(toolkit::redOf(gray), toolkit::greenOf(gray));
        EXPECT_EQ(toolkit::redOf(gray), toolkit::blueOf(gray));
        EXPECT_GT(toolkit::redOf(gray), 128);
    }
    EXPECT_LT(toolkit::redOf(grayOf(toolkit::rgb(195, 17, 25))),
              toolkit::redOf(grayOf(toolkit::rgb(62, 153, 206))));
}

TEST(Gray, AMiddleGreyIsLightened) {
    EXPECT_EQ(toolkit::redOf(grayOf(toolkit::rgb(128, 128, 128))), 207);
}

TEST(Gray, ADrawingsColoursBecomeWhatAPicturesDo) {
    const toolkit::Color red = toolkit::rgb(195, 17, 25);
    const toolkit::Color blue = toolkit::rgb(15, 105, 180);
    const toolkit::Drawing gray =
        grayed(toolkit::Drawing{.width = 9,
                                .height = 8,
                                .items = {toolkit::FilledRectangle{red, 1, 2, 3, 4},
                                          toolkit::Words{blue, "Arial", true, 5, 6, 7, "a"},
                                          toolkit::FilledRectangle{toolkit::white, 0, 0, 1, 1}}});
    const std::vector<toolkit::DrawnItem> expected{
        toolkit::FilledRectangle{grayOf(red), 1, 2, 3, 4},
        toolkit::Words{grayOf(blue), "Arial", true, 5, 6, 7, "a"},
        toolkit::FilledRectangle{toolkit::white, 0, 0, 1, 1}};
    EXPECT_EQ(gray.items, expected);
    EXPECT_EQ(gray.width, 9);
    EXPECT_EQ(gray.height, 8);
}

TEST(Gray, AnEmptyPictureStaysEmpty) { EXPECT_TRUE(grayed(toolkit::Bitmap()).empty()); }

} // namespace
} // namespace zev
