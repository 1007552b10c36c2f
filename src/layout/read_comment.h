// Moving an open file to its next data line. The form keeps the version that is met on the way.
#pragma once

#include "toolkit/base/text_input.h"

namespace zev {

struct Zevlin;

/// Passes over comments and empty lines and puts the version that they tell into VersionSeen; true
/// at the end of the file. A failure is traced and counts as the end.
bool SkipComment(Zevlin& form, toolkit::TextInput& input);

} // namespace zev
