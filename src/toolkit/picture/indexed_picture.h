// A picture of at most 256 colours, as the card is kept: a quarter of the memory of 32-bit pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace toolkit {

struct IndexedPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> palette; ///< 0xFFRRGGBB
    std::vector<std::uint8_t> indices;  ///< width x height, row by row
};

/// Decodes a picture made by the card tool. Damaged data is failure 481.
[[nodiscard]] IndexedPicture decodePicture(std::span<const std::byte> data);

} // namespace toolkit
