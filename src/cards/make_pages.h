// zevlin-cards pdf and image: cards as pages and images.
#pragma once

#include "cards/surroundings.h"

namespace zev {

/// Makes a file of each card, or one of all of them, by workers. A card that can't be made is told,
/// and the rest goes on. The exit status. Trouble where nothing can be made.
[[nodiscard]] int makePages(const CommandOptions& options, const Surroundings& surroundings);

} // namespace zev
