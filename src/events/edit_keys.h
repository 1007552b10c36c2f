// What the keys and the mouse do in an open field.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Characters that keys with Ctrl send.
namespace control_key {
constexpr int b = 2;
constexpr int c = 3;
constexpr int g = 7;
constexpr int i = 9;
constexpr int l = 12;
constexpr int v = 22;
constexpr int z = 26;
} // namespace control_key

void xText_KeyDown(Zevlin& form, toolkit::TextBox& box, toolkit::KeyArguments& key);
void xText_KeyPress(Zevlin& form, toolkit::TextBox& box, int& KeyAscii);
void xText_KeyUp(Zevlin& form, toolkit::TextBox& box, toolkit::KeyArguments& key);
void xText_MouseDown(Zevlin& form, toolkit::TextBox& box, toolkit::MouseArguments& mouse);

// The boxes' own events trace their names and call what both boxes share.
void CText_GotFocus(Zevlin& form);
void CText_KeyDown(Zevlin& form, toolkit::KeyArguments& key);
void CText_KeyPress(Zevlin& form, int& KeyAscii);
void CText_KeyUp(Zevlin& form, toolkit::KeyArguments& key);
void CText_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);
void LText_GotFocus(Zevlin& form);
void Ltext_KeyDown(Zevlin& form, toolkit::KeyArguments& key);
void Ltext_KeyPress(Zevlin& form, int& KeyAscii);
void Ltext_KeyUp(Zevlin& form, toolkit::KeyArguments& key);
void Ltext_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);

// The pop-up menu. A command that has a key does what the key does.
void mpopUndo_Click(Zevlin& form);
void mpopBold_Click(Zevlin& form);
void mpopItalic_Click(Zevlin& form);
void mpopLeft_Click(Zevlin& form);

/// Takes over what the box holds, and closes it.
void leaveField(Zevlin& form, toolkit::TextBox& box);

/// Opens the pop-up menu of a text field.
void openTextMenu(Zevlin& form);

} // namespace zev
