// The layout files that the program is installed with.
#pragma once

#include <string>

#include "card_tool/sheet.h"
#include "card_tool/typeface.h"

namespace card_tool {

/// The text of the layout file for a screen of 12, 13 or 15 twips per pixel.
[[nodiscard]] std::string layoutText(const Sheet& sheet, const Typefaces& faces, int twipsPerPixel);

} // namespace card_tool
