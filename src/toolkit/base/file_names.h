// Which names a file can have.
#pragma once

#include <string_view>

namespace toolkit {

/// Whether the platform can make a file of this name (a name, no path): no control characters, no
/// name longer than file systems take, no name that the platform keeps for devices.
[[nodiscard]] bool isPossibleFileName(std::string_view name);

} // namespace toolkit
