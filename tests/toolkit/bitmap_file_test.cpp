#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/failure_of.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/bitmap_file.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;
using test::failureOf;
using test::TemporaryFolder;

TEST(BitmapFile, APictureComesBackFromItsPngPixelByPixel) {
    const TemporaryFolder folder;
    Bitmap bitmap(5, 3, rgb(195, 17, 25));
    bitmap.setPixel(4, 2, rgb(1, 2, 3));
    savePng(bitmap, folder / "p.png");
    const Bitmap loaded = loadBitmap(folder / "p.png");
    ASSERT_EQ(loaded.width(), 5);
    ASSERT_EQ(loaded.height(), 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(loaded.pixel(x, y), bitmap.pixel(x, y));
}

TEST(BitmapFile, AGifIsRead) {
    const TemporaryFolder folder;
    // One pixel of red out of a palette of two.
    const std::string gif("GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);
    writeFile(folder / "p.gif", gif);
    EXPECT_EQ(loadBitmap(folder / "p.gif").pixel(0, 0), rgb(255, 0, 0));
}

TEST(BitmapFile, TransparentPixelsShowPaper) {
    const TemporaryFolder folder;
    const std::string gif("GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0!\xF9\4\1\0\0\0\0,\0\0\0\0\1\0\1\0\0"
                          "\2\2D\1\0;",
                          43);
    writeFile(folder / "p.gif", gif);
    EXPECT_EQ(loadBitmap(folder / "p.gif").pixel(0, 0), white);
}

TEST(BitmapFile, WhatIsNoPictureIsFailure481) {
    const TemporaryFolder folder;
    writeFile(folder / "text.png", "no picture at all");
    writeFile(folder / "empty.gif", "");
    savePng(Bitmap(200, 200), folder / "cut.png");
    writeFile(folder / "cut.png", readFile(folder / "cut.png").substr(0, 40));
    for (const char* name : {"text.png", "empty.gif", "cut.png"})
        EXPECT_EQ(failureOf([&] { (void)loadBitmap(folder / name); }), 481) << name;
}

TEST(BitmapFile, FormatsThatTheCardCannotHaveAreFailure481) {
    const TemporaryFolder folder;
    writeFile(folder / "p.ppm", "P3 1 1 255 255 0 0");
    EXPECT_EQ(failureOf([&] { (void)loadBitmap(folder / "p.ppm"); }), 481);
}

TEST(BitmapFile, FilesThatCannotBeReadOrWrittenSayWhy) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "d");
    EXPECT_EQ(failureOf([&] { (void)loadBitmap(folder / "none.png"); }), 53);
    EXPECT_EQ(failureOf([&] { (void)loadBitmap(folder / "d"); }), 75);
    EXPECT_EQ(failureOf([&] { savePng(Bitmap(1, 1), folder / "d"); }), 75);
    EXPECT_EQ(failureOf([&] { savePng(Bitmap(1, 1), "/dev/full"); }), 61);
}

TEST(BitmapFile, AnEmptyPictureCannotBeWritten) {
    const TemporaryFolder folder;
    EXPECT_EQ(failureOf([&] { savePng(Bitmap(), folder / "p.png"); }), 57);
    EXPECT_FALSE(fs::exists(folder / "p.png"));
}

} // namespace
} // namespace toolkit
