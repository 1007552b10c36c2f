// The pattern of the window's background.
#pragma once

#include "toolkit/picture/bitmap.h"

namespace zev {

/// Quiet green felt, 324 by 324 pixels, seamless at all edges; the same pixels on every run.
[[nodiscard]] toolkit::Bitmap feltTile();

} // namespace zev
