#include "toolkit/picture/pixel_memory.h"

#include <gtest/gtest.h>

#include "toolkit/base/system.h"
#include "toolkit/picture/bitmap.h"

namespace toolkit::test {
namespace {

TEST(PixelMemory, LargePicturesLeaveTheProcessWithTheirEnd) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the checker of the heap keeps what is given back";
#endif
    const auto before = memoryUsage().current;
    {
        const Bitmap large(4000, 4000);
        EXPECT_GT(memoryUsage().current, before + 50'000'000);
        Bitmap copy = large;
        copy.row(0)[0] = black;
        EXPECT_EQ(copy.pixel(3999, 3999), white);
        EXPECT_EQ(large.pixel(0, 0), white);
    }
    EXPECT_LT(memoryUsage().current, before + 10'000'000);
}

TEST(PixelMemory, WhatIsKeptServesTheNextPictureAndLeavesWhenReleased) {
    if (!keepsPixelMemory) GTEST_SKIP() << "the heap does that";
    const auto before = memoryUsage().current;
    const std::uint32_t* place = nullptr;
    {
        const KeptPixelMemory kept;
        place = Bitmap(2000, 2000, black).row(0);
    }
    EXPECT_TRUE(isPixelMemoryKept());
    EXPECT_GT(memoryUsage().current, before + 12'000'000);
    {
        const Bitmap next = Bitmap::unpainted(1000, 1000);
        EXPECT_EQ(next.row(0), place);
        EXPECT_FALSE(isPixelMemoryKept());
        // What the larger picture used behind it is gone at once.
        EXPECT_LT(memoryUsage().current, before + 8'000'000);
    }
    // Given back with nobody who keeps it, it leaves.
    EXPECT_FALSE(isPixelMemoryKept());
    EXPECT_LT(memoryUsage().current, before + 3'000'000);
    {
        const KeptPixelMemory kept;
        const Bitmap small(1000, 1000);
        const Bitmap large(2000, 2000);
    }
    // One is enough.
    EXPECT_LT(memoryUsage().current, before + 19'000'000);
    releaseKeptPixelMemory();
    EXPECT_FALSE(isPixelMemoryKept());
    EXPECT_LT(memoryUsage().current, before + 3'000'000);
}

} // namespace
} // namespace toolkit::test
