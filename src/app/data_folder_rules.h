// Which installed files go to the player's data folder, and when a copy counts.
#pragma once

#include <ctime>
#include <string_view>

namespace zev {

/// Whether a file of the program folder belongs to the player; the name in lower case.
[[nodiscard]] bool isPlayersFile(std::string_view lowerCaseName);

/// A target stands unless it is older than the source by at least one second.
[[nodiscard]] bool isGoodTarget(std::time_t source, std::time_t target);

/// A readme stays where it was installed.
[[nodiscard]] bool isReadme(std::string_view lowerCaseName);

} // namespace zev
