// Which installed files go to the player's data folder, and which copies there stay.
#pragma once

#include <ctime>
#include <string_view>

namespace zev {

/// Whether a file of the program folder belongs to the player; the name in lower case.
[[nodiscard]] bool isPlayersFile(std::string_view lowerCaseName);

/// Whether the target stays: it isn't older than the source by a second or more.
[[nodiscard]] bool isGoodTarget(std::time_t source, std::time_t target);

/// A readme stays where it was installed.
[[nodiscard]] bool isReadme(std::string_view lowerCaseName);

} // namespace zev
