// Which procedure runs for which event: the one place where the form is wired.
#pragma once

#include "toolkit/window/window.h"

namespace zev {

struct Zevlin;

/// Sets the event slots of all controls and returns the parts that the window shows.
[[nodiscard]] toolkit::WindowParts wire(Zevlin& form);

} // namespace zev
