// The bar that a desktop keeps at an edge of a screen. Internal to the toolkit's sources.
#pragma once

#include <QtCore/QRect>

namespace toolkit {

/// Desktops tell only what is left free of the screen; the widest strip outside is the bar. Empty
/// where all of it is free.
[[nodiscard]] QRect barBeside(const QRect& whole, const QRect& free);

} // namespace toolkit
