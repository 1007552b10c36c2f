// Saving the card.
#pragma once

namespace zev {

struct Zevlin;

/// Saves the card under its name, asking for one if it has none, and asking first where another
/// program has changed the file. A failure ends the program as soon as the card is safe in the
/// journal. While the screen is rebuilt the temporary copy is written, whose failure is only noted.
void MSave_Click(Zevlin& form);

/// Asks for a name and saves the card under it.
void MSaveAs_Click(Zevlin& form);

/// False while printing and during a zoom, which don't touch the title.
[[nodiscard]] bool showsTitle(const Zevlin& form);

} // namespace zev
