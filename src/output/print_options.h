// The items that choose the way of printing and force colour or black.
#pragma once

namespace zev {

struct Zevlin;

/// Both methods from now on: the primary one, or the one for printers that it leaves blank.
void mPrintAlt_Click(Zevlin& form);

/// Colour and black exclude each other; with neither the printer's depth decides.
void MColor_Click(Zevlin& form);
void MMono_Click(Zevlin& form);

} // namespace zev
