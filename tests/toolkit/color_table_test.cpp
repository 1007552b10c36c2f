#include "toolkit/picture/color_table.h"

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

/// How far a channel of a pixel is at most from the picture's.
int largestShift(const Bitmap& picture, const IndexedPicture& indexed) {
    int largest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const auto cell =
                static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width()) +
                static_cast<std::size_t>(x);
            const Color shown = colorOf(indexed.palette.at(indexed.indices.at(cell)));
            const Color meant = picture.pixel(x, y).value();
            largest = std::max({largest, std::abs(redOf(shown) - redOf(meant)),
                                std::abs(greenOf(shown) - greenOf(meant)),
                                std::abs(blueOf(shown) - blueOf(meant))});
        }
    }
    return largest;
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
    EXPECT_LE(largestShift(source, indexed), 16);
}

TEST(ColorTable, AnEmptyPictureHasNoColours) {
    EXPECT_TRUE(exactlyIndexed(Bitmap())->palette.empty());
    EXPECT_TRUE(nearlyIndexed(Bitmap()).indices.empty());
}

} // namespace
} // namespace toolkit::test
