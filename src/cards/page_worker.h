// A process that makes pages and images for another one.
#pragma once

#include <iosfwd>

#include "cards/page_tasks.h"

namespace zev {

/// Says that it is ready, or why it isn't, and answers one task after the other until there are no
/// more. The exit code.
[[nodiscard]] int workOnPages(const WorkerOrder& order, std::istream& in, std::ostream& out);

} // namespace zev
