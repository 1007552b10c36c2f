// The place of the mouse cursor.
#pragma once

namespace toolkit {

struct CursorPosition {
    int x = 0;
    int y = 0;
};
/// The cursor's place in screen pixels: the one asked for last until the pointer really moves.
[[nodiscard]] CursorPosition cursorPosition();
void setCursorPosition(CursorPosition position);

/// Whether the platform has refused to move the pointer where the cursor was put last. Then nobody
/// sees the cursor's place, until the player moves the pointer.
[[nodiscard]] bool isCursorUnseen();

} // namespace toolkit
