// Showing for a moment where the keyboard is.
#pragma once

#include "toolkit/window/cursor.h"

namespace zev {

struct Zevlin;

/// Highlights a text field for a moment and moves the cursor to it; a mark blinks in design mode.
void FlashFocus(Zevlin& form, int item);

/// Screen pixels of a place on the card (twips): the frame's whole width and height count as the
/// left and upper border.
[[nodiscard]] toolkit::CursorPosition screenPlace(const Zevlin& form, float x, float y);

} // namespace zev
