// The task bar's place.
#pragma once

#include "toolkit/window/screen.h"

namespace zev {

struct Zevlin;

/// In logical screen pixels; zero at 0, 0 where there is none.
toolkit::TaskBar GetTaskBarSize(Zevlin& form);

} // namespace zev
