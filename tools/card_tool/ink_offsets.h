#pragma once

#include "card_tool/typeface.h"

#include <array>

namespace card {

/// How far a character's ink lies from the left and from the top of its cell, in whole pixels.
struct InkOffset {
    int left = 0;
    int bottom = 0;
};

/// The offsets of check, circle and "[" of the text font, each at its three sizes, measured on
/// characters drawn at that resolution while the card stands at half scale.
[[nodiscard]] std::array<InkOffset, 9> inkOffsets(const Typefaces& faces, int twipsPerPixel);

} // namespace card
