// Saving the card.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

/// Saves the card under its name, asking for one if it has none, and asking first where another
/// program has changed the file. A failure ends the program as soon as the card is safe in the
/// journal. While the screen is rebuilt the temporary copy is written, whose failure is only noted.
void MSave_Click(Zevlin& form);

/// The file of the present card.
[[nodiscard]] std::filesystem::path cardPath(const Zevlin& form);

} // namespace zev
