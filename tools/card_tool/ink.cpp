#include "card_tool/ink.h"

namespace card {
namespace {

std::uint8_t shade(std::uint8_t full, int strength) {
    const int paper = 255;
    const int drop = (paper - full) * strength;
    return static_cast<std::uint8_t>(paper - (2 * drop + shadeCount) / (2 * shadeCount));
}

} // namespace

std::array<Rgb, paletteSize> pictureColours() {
    std::array<Rgb, paletteSize> colours{};
    for (const Ink ink : {Ink::Black, Ink::Red, Ink::Blue}) {
        const Rgb full = inkColours[static_cast<std::size_t>(ink)];
        for (int strength = 1; strength <= shadeCount; ++strength)
            colours[paletteIndex(ink, strength)] = {
                shade(full.red, strength), shade(full.green, strength), shade(full.blue, strength)};
    }
    return colours;
}

} // namespace card
