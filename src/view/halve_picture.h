// The next smaller step of the pyramid of halves.
#pragma once

#include "toolkit/picture/bitmap.h"

namespace zev {

/// Each pixel the rounded average of two by two; a single last row or column averages what is
/// there.
[[nodiscard]] toolkit::Bitmap halved(const toolkit::Bitmap& picture);

} // namespace zev
