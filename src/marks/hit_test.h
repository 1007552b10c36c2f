// Which mark a click on bare card means.
#pragma once

#include <optional>

#include "toolkit/model/control_array.h"
#include "toolkit/model/label.h"

namespace zev {

/// Whether the point is strictly inside the label less five pixels at its right, top and bottom.
/// The target for setting a mark is smaller than the mark, any part of which clears it.
[[nodiscard]] bool hitsMark(const toolkit::Label& mark, float x, float y, int twipsPerPixel);

/// The lowest mark from 1 up that the point (twips on the card) hits, shown or not.
[[nodiscard]] std::optional<int> markAt(const toolkit::ControlArray<toolkit::Label>& marks, float x,
                                        float y, int twipsPerPixel);

} // namespace zev
