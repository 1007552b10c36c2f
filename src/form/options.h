// Writing the options: each lives in the control or field that uses it.
#pragma once

#include "form/options_file.h"

namespace zev {

struct Zevlin;

/// Whether there is an options file that this run hasn't read: the player's settings are in it, and
/// not in memory.
[[nodiscard]] bool hasUnreadOptions(const Zevlin& form);

/// Rewrites the options file from the present state, but not one that this run hasn't read. A
/// failure is traced only. Where the printer isn't known yet, the file is written again when it is.
void IniWrite(Zevlin& form);

/// At the program's end: what IniWrite couldn't tell yet of the printer, and what it couldn't
/// write.
void completeOptions(Zevlin& form);

} // namespace zev
