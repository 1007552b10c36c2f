// Text on a picture.
#pragma once

#include <string_view>

#include "toolkit/base/color.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/text/font_spec.h"

namespace toolkit {

/// Draws a text with its line's top left corner at (x, y) pixels, as labels are painted.
void drawText(Bitmap& bitmap, float x, float y, const FontSpec& font, Color color,
              std::string_view text);

} // namespace toolkit
