// The card's artwork as a file: what the card is printed with, one item a line, from back to front.
//
//     artwork WIDTH HEIGHT
//     box COLOUR LEFT TOP WIDTH HEIGHT
//     words COLOUR FACE EM LEFT BASELINE WIDTH TEXT
//
// Lengths are pixels of the full picture, colours six hexadecimal digits of red, green and blue,
// faces "regular", "bold" or "suits". A text is in the code page and goes to the line's end.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/model/drawing.h"

namespace zev {

/// The fonts that the card is printed in.
constexpr std::string_view artworkFont = "Arial Narrow";
constexpr std::string_view artworkSuitFont = "Zevlin Print Suits";

[[nodiscard]] std::string writeArtwork(const toolkit::Drawing& artwork);

/// Failure 481 if it is none.
[[nodiscard]] toolkit::Drawing readArtwork(std::string_view file);

} // namespace zev
