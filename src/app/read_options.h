// Reading the options: each lives in the control or field that uses it.
#pragma once

#include <string>

namespace zev {

struct Zevlin;

/// Applies an options file's content line by line; unknown keys are passed over.
void readOptions(Zevlin& form, std::string content);

} // namespace zev
