// The pictures of the card.
#pragma once

#include "card_tool/sheet.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/indexed_picture.h"

namespace card_tool {

/// Prints a sheet at full scale, smoothed from four times that size.
[[nodiscard]] toolkit::IndexedPicture print(const Sheet& sheet);

/// The same pixels without a palette.
[[nodiscard]] toolkit::Bitmap bitmapOf(const toolkit::IndexedPicture& picture);

/// Half of a picture, as the program halves pictures. Throws Failure if that takes over 256
/// colours.
[[nodiscard]] toolkit::IndexedPicture halfOf(const toolkit::IndexedPicture& picture);

} // namespace card_tool
