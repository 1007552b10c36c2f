#include "toolkit/picture/gif_file.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/write_file.h"
#include "toolkit/failure_of.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/picture/color_table.h"

namespace toolkit::test {
namespace {

TEST(GifFile, IsReadBackPixelByPixel) {
    Bitmap source(37, 23, white);
    for (int i = 0; i < 200; ++i) source.setPixel(i % 37, i / 37, rgb(i, 255 - i, i / 2));
    const TemporaryFolder folder;
    writeFile(folder / "a.gif", gifFile(nearlyIndexed(source)));
    const Bitmap read = loadBitmap(folder / "a.gif");
    ASSERT_EQ(read.width(), 37);
    ASSERT_EQ(read.height(), 23);
    for (int y = 0; y < 23; ++y)
        for (int x = 0; x < 37; ++x) ASSERT_EQ(read.pixel(x, y), source.pixel(x, y)) << x << y;
}

TEST(GifFile, ASingleColourIsEnough) {
    EXPECT_TRUE(gifFile(nearlyIndexed(Bitmap(5, 5, black))).starts_with("GIF8"));
}

TEST(GifFile, WhatTheFormatCantHoldFails) {
    EXPECT_EQ(failureOf([] { (void)gifFile({}); }), static_cast<int>(Failure::InvalidPicture));
    EXPECT_EQ(failureOf([] { (void)gifFile(nearlyIndexed(Bitmap(65536, 1))); }),
              static_cast<int>(Failure::InvalidPicture));
}

} // namespace
} // namespace toolkit::test
