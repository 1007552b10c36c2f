#include "card_tool/ink.h"

#include "toolkit/picture/bitmap.h"

namespace card_tool {
namespace {

int shade(int full, int strength) {
    const int paper = 255;
    const int drop = (paper - full) * strength;
    return paper - (2 * drop + shadeCount) / (2 * shadeCount);
}

} // namespace

std::vector<std::uint32_t> pictureColors() {
    std::vector<std::uint32_t> colors(paletteSize, toolkit::pixelOf(toolkit::white));
    for (const Ink ink : {Ink::Black, Ink::Red, Ink::Blue}) {
        const toolkit::Color full = colorOf(ink);
        for (int strength = 1; strength <= shadeCount; ++strength)
            colors[paletteIndex(ink, strength)] = toolkit::pixelOf(toolkit::rgb(
                shade(toolkit::redOf(full), strength), shade(toolkit::greenOf(full), strength),
                shade(toolkit::blueOf(full), strength)));
    }
    return colors;
}

} // namespace card_tool
