#include "view/halve_picture.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

using toolkit::Bitmap;
using toolkit::rgb;

TEST(Halved, IsTheRoundedAverageOfTwoByTwo) {
    Bitmap picture(4, 2, toolkit::black);
    picture.setPixel(0, 0, rgb(1, 255, 0));
    picture.setPixel(1, 0, rgb(0, 255, 3));
    picture.setPixel(0, 1, rgb(0, 255, 3));
    picture.setPixel(1, 1, rgb(1, 254, 1));
    picture.setPixel(2, 0, toolkit::white);
    const Bitmap half = halved(picture);
    ASSERT_EQ(half.width(), 2);
    ASSERT_EQ(half.height(), 1);
    EXPECT_EQ(half.pixel(0, 0), rgb(1, 255, 2));
    EXPECT_EQ(half.pixel(1, 0), rgb(64, 64, 64));
}

TEST(Halved, AveragesWhatASingleLastRowAndColumnHold) {
    Bitmap picture(3, 3, toolkit::white);
    picture.setPixel(2, 0, toolkit::black);
    picture.setPixel(0, 2, toolkit::black);
    picture.setPixel(2, 2, rgb(9, 8, 7));
    const Bitmap half = halved(picture);
    ASSERT_EQ(half.width(), 2);
    ASSERT_EQ(half.height(), 2);
    EXPECT_EQ(half.pixel(0, 0), toolkit::white);
    EXPECT_EQ(half.pixel(1, 0), rgb(128, 128, 128));
    EXPECT_EQ(half.pixel(0, 1), rgb(128, 128, 128));
    EXPECT_EQ(half.pixel(1, 1), rgb(9, 8, 7));
}

} // namespace
} // namespace zev
