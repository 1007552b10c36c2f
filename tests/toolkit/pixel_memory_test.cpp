#include "toolkit/pixel_memory.h"

#include <gtest/gtest.h>

#include "toolkit/bitmap.h"
#include "toolkit/system.h"

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

} // namespace
} // namespace toolkit::test
