// The printed line that a check or a text stands on, found in the pixels of the card.
#pragma once

#include "design/searched_picture.h"

namespace zev {

/// Value of `horizontal` that asks for the vertical search alone.
constexpr float verticalOnly = -1;

/// Where a field expects its line.
struct LineSearch {
    float x = 0;     ///< left edge of a check's ink, or of a text's label
    float width = 0; ///< of the label
    float y = 0;     ///< foot of the ink
    int size = 1;    ///< 1 small, 2 medium, 3 large
};

/// How far the printed line lies below the foot of the ink, twips; negative above it, 0 where there
/// is none. The lower of two rows counts. With `horizontal` 0 the field is a check: `horizontal`
/// then becomes how far the left side of its box lies to the right of the ink, 0 where there is
/// none. With verticalOnly the field is a text.
[[nodiscard]] float findLine(const SearchedPicture& picture, const LineSearch& search,
                             float& horizontal);

} // namespace zev
