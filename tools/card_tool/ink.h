// The inks of the printed card and their shades.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "toolkit/base/color.h"

namespace card_tool {

/// What a place of the picture is printed with. Paper is also the "ink" of the words on black bars.
enum class Ink : std::uint8_t { Paper, Black, Red, Blue };

/// The full strength of each ink, in the order of Ink. The channels of the blue lie whole multiples
/// of the shade count below white, which keeps the number of averages of its shades small.
constexpr std::array<toolkit::Color, 4> inkColors{
    toolkit::white, toolkit::black, toolkit::rgb(195, 17, 25), toolkit::rgb(15, 105, 180)};
[[nodiscard]] constexpr toolkit::Color colorOf(Ink ink) {
    return inkColors.at(static_cast<std::size_t>(ink));
}

/// The number of steps from paper to full ink; each ink has that many shades.
constexpr int shadeCount = 15;

/// The colours of the full picture: paper first, then black, red and blue from faint to full.
constexpr int paletteSize = 1 + 3 * shadeCount;

/// The place in the palette of an ink at a strength of 0 (paper) to shadeCount.
[[nodiscard]] constexpr std::uint8_t paletteIndex(Ink ink, int strength) {
    const int row = static_cast<int>(ink) - 1;
    return strength == 0 || ink == Ink::Paper
               ? std::uint8_t{0}
               : static_cast<std::uint8_t>(row * shadeCount + strength);
}

/// The palette, as 0xFFRRGGBB.
[[nodiscard]] std::vector<std::uint32_t> pictureColors();

} // namespace card_tool
