// The settings for tests that the program's sources share. Internal to the toolkit.
#pragma once

#include "toolkit/program.h"

namespace toolkit {

[[nodiscard]] ProgramOverrides& programOverrides();

/// Lets the form bring to safety what must not be lost.
void prepareForEnd();

} // namespace toolkit
