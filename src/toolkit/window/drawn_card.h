// The card as a drawing.
#pragma once

#include "toolkit/model/control.h"
#include "toolkit/model/drawing.h"

namespace toolkit {

/// The card with the labels of the open window, as their values stand now, also the parts that no
/// screen shows. Without a window it has no labels.
[[nodiscard]] CardRecording recorded(const PictureBox& card);

/// A picture of that size with the drawing, stretched by the factor, in its upper left corner.
[[nodiscard]] Bitmap painted(const Drawing& drawing, double factor, int width, int height);

} // namespace toolkit
