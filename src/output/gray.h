// A picture in shades of grey.
#pragma once

#include "toolkit/model/drawing.h"

namespace zev {

/// Each pixel's luminance, lightened so that tints don't print as dark grey; black and white stay.
[[nodiscard]] toolkit::Bitmap grayed(const toolkit::Bitmap& picture);
/// The same for each colour of a drawing.
[[nodiscard]] toolkit::Drawing grayed(const toolkit::Drawing& drawing);

} // namespace zev
