// A field's own style, its one level of undo, and the private clipboard.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

// Called by a key, which they may set to 0. Where the card then has the focus the field is closed.
void toggleBold(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);
void toggleItalic(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);
void toggleJustification(Zevlin& form, int& KeyAscii);
void undoField(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);

// By the pop-up menu.
void mpopHilite_Click(Zevlin& form);
void mpopCopy_Click(Zevlin& form);
void mpopPaste_Click(Zevlin& form);

/// Whether a paste takes the program's own copy, which counts only until something else is copied,
/// in whatever program.
[[nodiscard]] bool takesCopy(const Zevlin& form);

} // namespace zev
