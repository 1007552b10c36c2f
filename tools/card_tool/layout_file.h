#pragma once

#include "card_tool/sheet.h"
#include "card_tool/typeface.h"

#include <string>

namespace card {

/// The version that the installed files bear.
inline constexpr const char* programVersion = "2.0.0";

/// The text of the layout file for a screen of 12, 13 or 15 twips per pixel.
[[nodiscard]] std::string layoutText(const Sheet& sheet, const Typefaces& faces, int twipsPerPixel);

} // namespace card
