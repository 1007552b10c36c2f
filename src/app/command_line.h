// The card that a command line names.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace zev {

/// The file that the command line, in UTF-8, names by its path or by an address ("file:"), if it is
/// there. A bare word without ".zev" is no path but a card's name.
[[nodiscard]] std::optional<std::filesystem::path> fileNamedBy(std::string_view commandLine);

/// The text after the last "\" or "/" of a command line in UTF-8, cut at its first "."; quotes have
/// no meaning. Empty where Windows-1252 can't hold it, since no card can have that name.
[[nodiscard]] std::string cardNameOf(std::string_view commandLine);

} // namespace zev
