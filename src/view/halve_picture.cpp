#include "view/halve_picture.h"

#include <algorithm>
#include <cstdint>

namespace zev {
namespace {

using Pixel = std::uint32_t;

constexpr Pixel lowChannels = 0x00FF00FFU;

// The rounded average of two by two pixels, two channels at a time.
constexpr Pixel averageOfFour(Pixel a, Pixel b, Pixel c, Pixel d) {
    const auto average = [](Pixel sum) { return (sum + 0x00020002U) >> 2U & lowChannels; };
    const Pixel redAndBlue =
        average((a & lowChannels) + (b & lowChannels) + (c & lowChannels) + (d & lowChannels));
    const Pixel green = average((a >> 8U & lowChannels) + (b >> 8U & lowChannels) +
                                (c >> 8U & lowChannels) + (d >> 8U & lowChannels));
    return 0xFF000000U | (green & 0xFFU) << 8U | redAndBlue;
}

// A single last column counts twice.
void halveRows(const Pixel* upper, const Pixel* lower, int width, Pixel* output) {
    for (int x = 0; x + 1 < width; x += 2)
        *output++ = averageOfFour(upper[x], upper[x + 1], lower[x], lower[x + 1]);
    if (width % 2 == 0) return;
    const Pixel above = upper[width - 1];
    const Pixel below = lower[width - 1];
    *output = averageOfFour(above, above, below, below);
}

} // namespace

toolkit::Bitmap halved(const toolkit::Bitmap& picture) {
    auto half = toolkit::Bitmap::unwritten((picture.width() + 1) / 2, (picture.height() + 1) / 2);
    for (int y = 0; y < half.height(); ++y) {
        const int lower = std::min(2 * y + 1, picture.height() - 1);
        halveRows(picture.row(2 * y), picture.row(lower), picture.width(), half.row(y));
    }
    return half;
}

} // namespace zev
