// zevlin-cards check: every card readable?
#pragma once

#include "cards/surroundings.h"

namespace zev {

/// Tells what is wrong with cards, by file and line. The exit status. Trouble as forEachCard.
[[nodiscard]] int checkCards(const CommandOptions& options, const Surroundings& surroundings);

} // namespace zev
