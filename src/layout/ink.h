// Where a drawn character's ink lies.
#pragma once

#include <optional>

#include "toolkit/picture/bitmap.h"

namespace zev {

/// Pixels from the picture's left or top edge.
struct InkEdges {
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;
};

/// The outermost columns and rows whose pixels differ from the reference colour; none if no pixel
/// does.
[[nodiscard]] std::optional<InkEdges> findInk(const toolkit::Bitmap& picture,
                                              toolkit::Color reference);

} // namespace zev
