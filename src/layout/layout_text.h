// The layout as the controls have it.
#pragma once

#include <string>

#include "layout/layout_file.h"

namespace zev {

struct Zevlin;

/// What Definitions.Ini would say now.
[[nodiscard]] std::string layoutText(const Zevlin& form);

} // namespace zev
