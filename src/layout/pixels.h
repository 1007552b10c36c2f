// Between twips and the whole pixels of the layout file.
#pragma once

#include "toolkit/base/color.h"

namespace zev {

/// Twips to whole pixels: the integer part (floor) of (x + half a pixel) over a pixel, so halves go
/// up and places left of the card keep their distance.
[[nodiscard]] float px(float twips, int twipsPerPixel);

struct ColorParts {
    int red = 0;
    int green = 0;
    int blue = 0;
};
[[nodiscard]] ColorParts PointVals(toolkit::Color color);

} // namespace zev
