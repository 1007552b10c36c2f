// Scaling the card's picture, as smooth as print: area averages from a pyramid of halves.
#pragma once

#include "toolkit/bitmap.h"
#include "toolkit/indexed_picture.h"

namespace zev {

/// The content of `source` shrunk by `factor` (0 < factor <= 1) into a picture of the given size in
/// pixels: each pixel the rounded average of the area that it covers. Content begins at (0, 0) and
/// takes its scaled size rounded to whole pixels; what it doesn't reach is white.
struct ScaleRequest {
    float factor = 1;
    int width = 0;
    int height = 0;
};
[[nodiscard]] toolkit::Bitmap scaled(const toolkit::Bitmap& source, const ScaleRequest& request);
[[nodiscard]] toolkit::Bitmap scaled(const toolkit::IndexedPicture& source,
                                     const ScaleRequest& request);

} // namespace zev
