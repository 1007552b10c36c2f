#include "toolkit/color_table.h"

#include <gtest/gtest.h>

namespace toolkit::test {
namespace {

/// As many colours as asked for, most of it paper.
Bitmap picture(int colors) {
    Bitmap bitmap(256, 256, white);
    for (int i = 0; i < colors - 1; ++i)
        bitmap.setPixel(i % 256, i / 256, rgb(i % 256, i / 256 * 3, i % 7));
    return bitmap;
}

TEST(ColorTable, UpTo256ColoursAreKeptExactly) {
    const Bitmap source = picture(256);
    const auto indexed = exactlyIndexed(source);
    ASSERT_TRUE(indexed);
    EXPECT_EQ(indexed->palette.size(), 256U);
    EXPECT_EQ(largestShift(source, *indexed), 0);
    EXPECT_EQ(largestShift(source, nearlyIndexed(source)), 0);
}

TEST(ColorTable, MoreColoursHaveNoExactPalette) {
    EXPECT_FALSE(exactlyIndexed(picture(257)));
    const IndexedPicture indexed = nearlyIndexed(picture(257));
    EXPECT_LE(indexed.palette.size(), 256U);
    EXPECT_LE(largestShift(picture(257), indexed), 3);
}

TEST(ColorTable, FrequentColoursStayExactly) {
    Bitmap source(300, 300, rgb(255, 254, 253));
    source.fill(0, 0, 300, 40, rgb(195, 17, 25));
    for (int i = 0; i < 3000; ++i)
        source.setPixel(i % 300, 100 + i / 300, rgb(i % 256, i * 7 % 256, i * 13 % 256));
    const IndexedPicture indexed = nearlyIndexed(source);
    EXPECT_EQ(indexed.palette[indexed.indices[0]], pixelOf(rgb(195, 17, 25)));
    EXPECT_EQ(indexed.palette[indexed.indices[300 * 60]], pixelOf(rgb(255, 254, 253)));
    EXPECT_GT(largestShift(source, indexed), 8);
}

TEST(ColorTable, AnEmptyPictureHasNoColours) {
    EXPECT_TRUE(exactlyIndexed(Bitmap())->palette.empty());
    EXPECT_TRUE(nearlyIndexed(Bitmap()).indices.empty());
}

} // namespace
} // namespace toolkit::test
