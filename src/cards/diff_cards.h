// zevlin-cards diff: the fields in which two cards differ.
#pragma once

#include "cards/surroundings.h"

namespace zev {

/// Tells the differences of two cards: lines, or JSON. The exit status: 0 they read the same, 1
/// they differ, 2 one can't be read.
[[nodiscard]] int diffCards(const CommandOptions& options, const Surroundings& surroundings);

} // namespace zev
