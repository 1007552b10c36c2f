// A field's own style, its one level of undo, and the private clipboard.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

// By key: the field closes where the key is swallowed and the card gets the focus.
void toggleBold(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);
void toggleItalic(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);
void toggleJustification(Zevlin& form, int& KeyAscii);
void undoField(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);

// By the pop-up menu.
void mpopHilite_Click(Zevlin& form);
void mpopCopy_Click(Zevlin& form);
void mpopPaste_Click(Zevlin& form);

/// Whether a paste takes the program's own copy: it counts only as long as nothing else has been
/// copied anywhere.
[[nodiscard]] bool takesCopy(const Zevlin& form);

} // namespace zev
