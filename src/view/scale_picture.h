// Scaling the card's picture, as smooth as print: area averages from a pyramid of halves.
#pragma once

#include <limits>
#include <memory>
#include <utility>

#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/indexed_picture.h"
#include "view/row_work.h"

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

/// A picture that is still being made; it is complete when its rows are finished.
struct PictureInMaking {
    std::shared_ptr<const toolkit::Bitmap> picture;
    RowWork rows;

    [[nodiscard]] std::shared_ptr<const toolkit::Bitmap> finished() && {
        rows.finish();
        return std::move(picture);
    }
};

/// A picture that was begun before it was asked for.
struct PictureAhead {
    ScaleRequest request;
    PictureInMaking making;
};

[[nodiscard]] PictureInMaking startScaled(const std::shared_ptr<const toolkit::Bitmap>& source,
                                          const ScaleRequest& request);
[[nodiscard]] PictureInMaking
startScaled(const std::shared_ptr<const toolkit::IndexedPicture>& source,
            const ScaleRequest& request);

} // namespace zev
