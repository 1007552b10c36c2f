// Colours as the program keeps and stores them: red in the low byte, then green, then blue.
#pragma once

#include <cstdint>

namespace toolkit {

using Color = std::uint32_t;

constexpr Color rgb(int red, int green, int blue) {
    return static_cast<Color>(red) | static_cast<Color>(green) << 8U |
           static_cast<Color>(blue) << 16U;
}

constexpr int redOf(Color color) { return static_cast<int>(color & 0xFFU); }
constexpr int greenOf(Color color) { return static_cast<int>(color >> 8U & 0xFFU); }
constexpr int blueOf(Color color) { return static_cast<int>(color >> 16U & 0xFFU); }

constexpr Color black = rgb(0, 0, 0);
constexpr Color white = rgb(255, 255, 255);

/// Colour 0..15 of the platform's fixed palette; any other index is failure 5.
[[nodiscard]] Color qbColor(int index);

} // namespace toolkit
