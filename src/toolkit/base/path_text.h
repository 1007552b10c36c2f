// Paths as texts. They stay native outside of messages, since a home folder may hold any character.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace toolkit {

/// A path as a text for messages, traces and captions ("?" for what the code page lacks).
[[nodiscard]] std::string displayText(const std::filesystem::path& path);

/// The text as a file name or path of the platform.
[[nodiscard]] std::filesystem::path pathFromText(std::string_view text);

/// The file name as a text, letters with their accents; none where the code page can't hold it.
[[nodiscard]] std::optional<std::string> textFromPath(const std::filesystem::path& path);

} // namespace toolkit
