// Saving the card.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

/// Saves the card under its name, asking for one if it has none. A failure ends the program.
void MSave_Click(Zevlin& form);

/// The file of the present card.
[[nodiscard]] std::filesystem::path cardPath(const Zevlin& form);

} // namespace zev
