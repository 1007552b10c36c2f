// A field's own style, its one level of undo, and the private clipboard.
#pragma once

#include "toolkit/control.h"

namespace zev {

struct Zevlin;

// By key: the field closes where the key is swallowed and the card gets the focus.
void toggleBold(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);
void toggleItalic(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);
void toggleJustification(Zevlin& form, int& KeyAscii);
void undoField(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);

// By the pop-up menu.
void mpopUndo_Click(Zevlin& form);
void mpopBold_Click(Zevlin& form);
void mpopItalic_Click(Zevlin& form);
void mpopLeft_Click(Zevlin& form);
void mpopHilite_Click(Zevlin& form);
void mpopCopy_Click(Zevlin& form);
void mpopPaste_Click(Zevlin& form);

/// Opens the pop-up menu of a text field.
void openTextMenu(Zevlin& form);

} // namespace zev
