#pragma once

#include <array>
#include <cstdint>

namespace card {

/// What a place of the picture is printed with. Paper is also the "ink" of the words on black bars.
enum class Ink : std::uint8_t { Paper, Black, Red, Blue };

struct Rgb {
    std::uint8_t red = 255;
    std::uint8_t green = 255;
    std::uint8_t blue = 255;

    friend constexpr auto operator<=>(const Rgb&, const Rgb&) = default;
};

/// The full strength of each ink, in the order of Ink. The channels of the blue lie whole multiples
/// of the shade count below white, which keeps the number of averages of its shades small.
inline constexpr std::array<Rgb, 4> inkColours{
    {{255, 255, 255}, {0, 0, 0}, {195, 17, 25}, {15, 105, 180}}};

/// The number of steps from paper to full ink; each ink has that many shades.
inline constexpr int shadeCount = 15;

/// The colours of the full picture: paper first, then black, red and blue from faint to full.
inline constexpr int paletteSize = 1 + 3 * shadeCount;

/// The place in the palette of an ink at a strength of 0 (paper) to shadeCount.
[[nodiscard]] constexpr std::uint8_t paletteIndex(Ink ink, int strength) {
    const int row = static_cast<int>(ink) - 1;
    return strength == 0 || ink == Ink::Paper
               ? std::uint8_t{0}
               : static_cast<std::uint8_t>(row * shadeCount + strength);
}

[[nodiscard]] std::array<Rgb, paletteSize> pictureColours();

} // namespace card
