// A picture in shades of grey.
#pragma once

#include "toolkit/picture/bitmap.h"

namespace zev {

/// Each pixel's luminance, lightened so that tints don't print as dark grey; black and white stay.
[[nodiscard]] toolkit::Bitmap grayed(const toolkit::Bitmap& picture);

} // namespace zev
