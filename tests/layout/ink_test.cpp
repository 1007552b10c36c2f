#include "layout/ink.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(Ink, IsNoneOnABlankPicture) {
    EXPECT_FALSE(findInk(toolkit::Bitmap(9, 7), toolkit::white));
    EXPECT_FALSE(findInk(toolkit::Bitmap(9, 7, toolkit::black), toolkit::black));
    EXPECT_FALSE(findInk(toolkit::Bitmap(), toolkit::white));
}

TEST(Ink, ReachesTheOutermostPixels) {
    toolkit::Bitmap picture(20, 12);
    picture.setPixel(6, 9, toolkit::black);
    picture.setPixel(3, 4, toolkit::black);
    picture.setPixel(11, 2, toolkit::black);
    const auto edges = findInk(picture, toolkit::white);
    ASSERT_TRUE(edges);
    EXPECT_EQ(edges->left, 3);
    EXPECT_EQ(edges->bottom, 9);
    EXPECT_EQ(edges->right, 11);
    EXPECT_EQ(edges->top, 2);
}

TEST(Ink, IsAnyOtherColourThanTheReference) {
    toolkit::Bitmap picture(4, 4, toolkit::rgb(10, 20, 30));
    picture.setPixel(1, 2, toolkit::rgb(10, 20, 31));
    const auto edges = findInk(picture, toolkit::rgb(10, 20, 30));
    ASSERT_TRUE(edges);
    EXPECT_EQ(edges->left, 1);
    EXPECT_EQ(edges->top, 2);
}

TEST(Ink, IsFoundInTheCorners) {
    toolkit::Bitmap picture(5, 6);
    picture.setPixel(0, 0, toolkit::black);
    picture.setPixel(4, 5, toolkit::black);
    const auto edges = findInk(picture, toolkit::white);
    ASSERT_TRUE(edges);
    EXPECT_EQ(edges->left, 0);
    EXPECT_EQ(edges->top, 0);
    EXPECT_EQ(edges->right, 4);
    EXPECT_EQ(edges->bottom, 5);
}

} // namespace
} // namespace zev
