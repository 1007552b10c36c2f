// Asking for a card's name.
#pragma once

#include <string>
#include <vector>

namespace zev {

struct Zevlin;

/// Names of the cards in the data folder, without the extension.
[[nodiscard]] std::vector<std::string> cardNames(const Zevlin& form);

/// The name that the player chose, trimmed; empty for cancel or a name that no file can have.
[[nodiscard]] std::string GetFileNames(Zevlin& form);

} // namespace zev
