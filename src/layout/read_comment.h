// Moving an open file to its next data line, under the form's eyes.
#pragma once

#include "toolkit/base/text_input.h"

namespace zev {

struct Zevlin;

/// Passes over comments and empty lines, keeping the version that stands there in VersionSeen; true
/// at the end of the file. A failure is traced and counts as the end.
bool SkipComment(Zevlin& form, toolkit::TextInput& input);

} // namespace zev
