// The items that choose the way of printing and force colour or black.
#pragma once

namespace zev {

struct Zevlin;

/// Changes between the two ways of printing: the primary one, and the one for printers on which
/// that prints a blank page.
void mPrintAlt_Click(Zevlin& form);

/// Colour and black exclude each other; with neither, the printer's colour depth decides.
void MColor_Click(Zevlin& form);
void MMono_Click(Zevlin& form);

} // namespace zev
