#include "output/printed_size.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

constexpr float ratio = 1.05F;

PageFacts page(float width, float height) {
    return {.widthInches = width,
            .heightInches = height,
            .pixelsPerInchX = 600,
            .pixelsPerInchY = 300,
            .twipsPerPixelX = 2.4F,
            .twipsPerPixelY = 4.8F,
            .scaleWidth = width * 1440};
}

TEST(PrintedSize, IsNeverWiderThanEightAndATenth) {
    EXPECT_FLOAT_EQ(deviceSize(page(8.5F, 20), ratio).width, 8.1F * 600);
    EXPECT_FLOAT_EQ(deviceSize(page(8.5F, 20), ratio).height, 8.1F * 600 * ratio);
    EXPECT_FLOAT_EQ(printedHeight(page(8.5F, 20), ratio), 8.1F * 1440 * ratio);
}

TEST(PrintedSize, IsNeverWiderThanThePage) {
    EXPECT_FLOAT_EQ(deviceSize(page(8.1F, 20), ratio).width, 8.1F * 600);
    EXPECT_FLOAT_EQ(deviceSize(page(7.5F, 20), ratio).width, 7.5F * 600);
    EXPECT_FLOAT_EQ(printedHeight(page(7.5F, 20), ratio), 7.5F * 1440 * ratio);
}

TEST(PrintedSize, AnUnknownPageGetsTheFullWidthOfTheDevice) {
    EXPECT_FLOAT_EQ(deviceSize(page(2, 20), ratio).width, 8.1F * 600);
    EXPECT_FLOAT_EQ(deviceSize(page(2.01F, 20), ratio).width, 2.01F * 600);
    EXPECT_FLOAT_EQ(printedHeight(page(2, 20), ratio), 2 * 1440 * ratio);
}

TEST(PrintedSize, AnOverrunIsSqueezedInItsHeightOnly) {
    const DeviceSize size = deviceSize(page(8.5F, 6), ratio);
    EXPECT_FLOAT_EQ(size.width, 8.1F * 600);
    EXPECT_FLOAT_EQ(size.height, 6 * 300);
    EXPECT_FLOAT_EQ(printedHeight(page(8.5F, 6), ratio), 6 * 1440);
}

} // namespace
} // namespace zev
