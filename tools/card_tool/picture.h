#pragma once

#include "card_tool/ink.h"
#include "card_tool/sheet.h"

#include <cstdint>
#include <vector>

namespace card {

/// A picture of at most 256 colours: one palette index for each pixel, row by row.
struct IndexedPicture {
    int width = 0;
    int height = 0;
    std::vector<Rgb> palette{};
    std::vector<std::uint8_t> pixels{};

    [[nodiscard]] Rgb colour(int x, int y) const { return palette[pixels[index(x, y)]]; }
    [[nodiscard]] std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }
};

/// Prints a sheet at full scale, smoothed from four times that size.
[[nodiscard]] IndexedPicture print(const Sheet& sheet);

/// Half of a picture: each pixel the rounded average, channel by channel, of two by two pixels; a
/// last odd row or column averages what there is. Throws Failure if that takes over 256 colours.
[[nodiscard]] IndexedPicture halved(const IndexedPicture& picture);

} // namespace card
