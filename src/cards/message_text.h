// Paths, what they name, and the system's errors as texts for messages, in UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace zev {

/// On one line, whatever is in it: control characters as \n, \r, \t and \x1B.
[[nodiscard]] std::string onOneLine(std::string_view utf8);

/// The path's own bytes, in UTF-8 on systems that have other ones.
[[nodiscard]] std::string utf8Of(const std::filesystem::path& path);
/// Failure 52 where the system can't have such a path.
[[nodiscard]] std::filesystem::path pathOf(std::string_view utf8);

/// As Zevlin tells of the same trouble with a file.
[[nodiscard]] std::string textOf(const std::error_code& error);

/// The text in double quotes as JSON has it. Bytes that are no UTF-8 become replacement characters.
[[nodiscard]] std::string jsonText(std::string_view utf8);

} // namespace zev
