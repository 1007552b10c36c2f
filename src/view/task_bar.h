// The task bar's place.
#pragma once

#include "toolkit/window/screen.h"

namespace zev {

struct Zevlin;

/// In logical screen pixels; all zero where there is none.
toolkit::TaskBar GetTaskBarSize(Zevlin& form);

} // namespace zev
