// Versions as the file readers compare them: as plain texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zev {

/// Files of this version and above carry bit-switches.
constexpr std::string_view switchesVersion = "1.0.181";

/// Byte by byte, so 1.0.99 is above 1.0.181 and an empty version below everything.
[[nodiscard]] bool isBelow(std::string_view version, std::string_view limit);

/// major.minor.revision; a revision of four characters shows its last two in brackets.
[[nodiscard]] std::string versionText(int major, int minor, std::string_view revision);

/// The first two numbers of the version in a layout's comment ("1.0.181" gives 1.0; a text with
/// fewer than two dots stays whole; no version line gives an empty text). None if no carriage
/// return ends the version: such a file is never compared.
[[nodiscard]] std::optional<std::string> comparedVersion(std::string_view layoutContent);

} // namespace zev
