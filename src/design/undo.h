// The keys of the card that bring a character: in design mode Ctrl+Z takes back the last change.
#pragma once

namespace zev {

struct Zevlin;

void P1_KeyPress(Zevlin& form, int& KeyAscii);

} // namespace zev
