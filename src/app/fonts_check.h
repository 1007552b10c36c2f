// The fonts of the card: their sizes at the present scale, and whether they can be used.
#pragma once

namespace zev {

struct Zevlin;
struct InitializeRun;

/// Sets the sizes of texts and marks and checks the fonts. A defective text font ends the program.
void checkFonts(Zevlin& form, InitializeRun& run);

} // namespace zev
