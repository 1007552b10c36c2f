// Which names a file can have.
#pragma once

#include <cstddef>
#include <string_view>

namespace toolkit {

/// Of a file, on all platforms; some just say that a longer one isn't there.
constexpr std::size_t longestFileName = 255;

/// Whether the platform can make a file of this name (a name, no path): no control characters, no
/// name longer than file systems take, no name that the platform keeps for devices.
[[nodiscard]] bool isPossibleFileName(std::string_view name);

} // namespace toolkit
