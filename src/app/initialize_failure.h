// What a failed start-up step tells the player.
#pragma once

#include "toolkit/base/error.h"

namespace zev {

struct Zevlin;

/// Traces the failure, offers to delete the file at fault (the options below step 600, else the
/// layout) and ends the program.
[[noreturn]] void endFailedInitialize(Zevlin& form, const toolkit::RunTimeError& failure, int step);

} // namespace zev
