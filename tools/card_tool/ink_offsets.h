// Where a character's ink lies in its cell, as the program measures it.
#pragma once

#include "card_tool/typeface.h"
#include "layout/layout_file.h"

namespace card_tool {

/// The offsets of check, circle and "[" of the text font, each at its three sizes, measured on
/// characters drawn at that resolution while the card stands at half scale.
[[nodiscard]] zev::FileOffsets inkOffsets(const Typefaces& faces, int twipsPerPixel);

} // namespace card_tool
