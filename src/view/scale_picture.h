// Scaling the card's picture, as smooth as print: area averages.
#pragma once

#include <limits>

#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/indexed_picture.h"

namespace zev {

/// The content of a picture shrunk by `factor` (0 < factor <= 1) into a picture of the given size
/// in pixels: each pixel the rounded average of the area that it covers. Content begins at (0, 0)
/// and takes its scaled size rounded to whole pixels, but no more than `contentHeight`; what it
/// doesn't reach is white.
struct ScaleRequest {
    float factor = 1;
    int width = 0;
    int height = 0;
    int contentHeight = std::numeric_limits<int>::max();

    bool operator==(const ScaleRequest&) const = default;
};

[[nodiscard]] toolkit::Bitmap scaled(const toolkit::Bitmap& source, const ScaleRequest& request);
[[nodiscard]] toolkit::Bitmap scaled(const toolkit::IndexedPicture& source,
                                     const ScaleRequest& request);

} // namespace zev
