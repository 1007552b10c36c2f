#include "toolkit/picture/bitmap.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

constexpr Color red = rgb(255, 0, 0);

auto count(const Bitmap& bitmap, Color color) {
    return std::count(bitmap.row(0), bitmap.row(0) + bitmap.width() * bitmap.height(),
                      pixelOf(color));
}

TEST(Bitmap, BeginsFilled) {
    const Bitmap bitmap(3, 2, red);
    EXPECT_EQ(count(bitmap, red), 6);
    EXPECT_FALSE(bitmap.empty());
    EXPECT_TRUE(Bitmap().empty());
}

TEST(Bitmap, ANegativeSizeIsAnEmptyPicture) {
    EXPECT_TRUE(Bitmap(-1, 5).empty());
    EXPECT_TRUE(Bitmap(5, -1).empty());
    EXPECT_TRUE(Bitmap::unwritten(5, -1).empty());
    EXPECT_TRUE(Bitmap::unwritten(-1, 5).empty());
}

TEST(Bitmap, AnUnwrittenOneHoldsWhatIsWritten) {
    auto bitmap = Bitmap::unwritten(3, 2);
    EXPECT_EQ(bitmap.width(), 3);
    EXPECT_EQ(bitmap.height(), 2);
    bitmap.fill(0, 0, 3, 2, red);
    EXPECT_EQ(count(bitmap, red), 6);
}

TEST(Bitmap, ACopyIsItsOwn) {
    const Bitmap first(3, 2, red);
    Bitmap copy = first;
    copy.setPixel(0, 0, white);
    EXPECT_EQ(count(first, red), 6);
    EXPECT_EQ(count(copy, red), 5);
    copy = first;
    EXPECT_EQ(count(copy, red), 6);
    copy = Bitmap();
    EXPECT_TRUE(copy.empty());
    EXPECT_TRUE(Bitmap(copy).empty());
}

TEST(Bitmap, IsMovedWithItsPixels) {
    Bitmap first(3, 2, red);
    const std::uint32_t* pixels = first.row(0);
    const Bitmap second = std::move(first);
    EXPECT_EQ(second.row(0), pixels);
    EXPECT_EQ(count(second, red), 6);
}

TEST(Bitmap, PixelsAreStoredOpaqueWithRedOnTop) {
    EXPECT_EQ(pixelOf(rgb(0x11, 0x22, 0x33)), 0xFF112233U);
    EXPECT_EQ(colorOf(0xFF112233U), rgb(0x11, 0x22, 0x33));
}

TEST(Bitmap, APixelReadsBackWhatWasSet) {
    Bitmap bitmap(3, 2);
    bitmap.setPixel(2, 1, red);
    EXPECT_EQ(bitmap.pixel(2, 1), red);
    EXPECT_EQ(count(bitmap, red), 1);
}

TEST(Bitmap, OutsideThereIsNoPixel) {
    Bitmap bitmap(3, 2);
    for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {3, 0}, {0, 2}}) {
        bitmap.setPixel(x, y, red);
        EXPECT_EQ(bitmap.pixel(x, y), std::nullopt);
    }
    EXPECT_EQ(count(bitmap, red), 0);
}

TEST(Bitmap, FillCoversItsRectangleOnly) {
    Bitmap bitmap(5, 4);
    bitmap.fill(1, 1, 3, 2, red);
    EXPECT_EQ(count(bitmap, red), 6);
    EXPECT_EQ(bitmap.pixel(1, 1), red);
    EXPECT_EQ(bitmap.pixel(3, 2), red);
    EXPECT_EQ(bitmap.pixel(4, 2), white);
    EXPECT_EQ(bitmap.pixel(3, 3), white);
}

TEST(Bitmap, FillIsCutAtTheEdges) {
    Bitmap bitmap(5, 4);
    bitmap.fill(-2, -2, 3, 3, red);
    EXPECT_EQ(count(bitmap, red), 1);
    bitmap.fill(4, 3, 100, 100, red);
    EXPECT_EQ(count(bitmap, red), 2);
    bitmap.fill(9, 9, 2, 2, red);
    bitmap.fill(2, 2, -1, 1, red);
    EXPECT_EQ(count(bitmap, red), 2);
}

TEST(Bitmap, FillTakesTheLargestRectangle) {
    constexpr int largest = std::numeric_limits<int>::max();
    Bitmap bitmap(5, 4);
    bitmap.fill(1, 1, largest, largest, red);
    EXPECT_EQ(count(bitmap, red), 12);
}

} // namespace
} // namespace toolkit
