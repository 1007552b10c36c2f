// The layout as the controls have it.
#pragma once

#include <string>

namespace zev {

struct Zevlin;

/// What Definitions.Ini would say now.
[[nodiscard]] std::string layoutText(const Zevlin& form);

/// The layout's file name in the data folder.
constexpr const char* layoutFileName = "Definitions.Ini";

} // namespace zev
