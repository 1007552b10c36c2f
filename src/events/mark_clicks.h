// Clicks on set marks and on suit symbols, and the mark on which the TAB walk has stopped.
#pragma once

#include <string>

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

void AMark_MouseDown(Zevlin& form, int index, toolkit::MouseArguments& mouse);
void AMark_Click(Zevlin& form, int index);

// A symbol has no behaviour of its own: its events go to the field that its Tag names.
void SText_MouseDown(Zevlin& form, int index, toolkit::MouseArguments& mouse);
void SText_MouseMove(Zevlin& form, int index, toolkit::MouseArguments& mouse);
void SText_MouseUp(Zevlin& form, int index, toolkit::MouseArguments& mouse);
void SText_Click(Zevlin& form, int index);

/// Sets or clears the mark without the mouse; the walk by TAB goes on from there.
void turnMark(Zevlin& form, int index);

/// Lets SPACE and TAB act on this mark while the cursor stays where it is now.
void rememberTabMark(Zevlin& form, int index);

/// "AMark(i) left, top, width, height; Cursor: x, y, code" for traces.
[[nodiscard]] std::string focusText(const Zevlin& form, int index);

} // namespace zev
