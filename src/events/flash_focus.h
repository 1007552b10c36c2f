// Showing for a moment which field the keyboard has reached.
#pragma once

#include "toolkit/window/cursor.h"

namespace zev {

struct Zevlin;

/// Highlights a text field for a moment and moves the cursor to it; a mark blinks in design mode.
void FlashFocus(Zevlin& form, int item);

/// The place on the screen, in pixels, of a place on the card (twips). The left and upper border of
/// the window count as wide as the whole frame.
[[nodiscard]] toolkit::CursorPosition screenPlace(const Zevlin& form, float x, float y);

} // namespace zev
