// zevlin-cards text: the fields that are filled in, as one reads them.
#pragma once

#include "cards/surroundings.h"

namespace zev {

/// Tells what cards say: lines, or JSON. One that the program can't read whole is told as damaged
/// instead. The exit status. Trouble as forEachCard.
[[nodiscard]] int tellCards(const CommandOptions& options, const Surroundings& surroundings);

} // namespace zev
