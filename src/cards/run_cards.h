// The commands of zevlin-cards.
#pragma once

#include <string>
#include <vector>

#include "cards/surroundings.h"

namespace zev {

/// Does what the arguments (without the program's name, in UTF-8) ask for; the exit status.
[[nodiscard]] int runCards(std::vector<std::string> arguments, const Surroundings& surroundings);

} // namespace zev
