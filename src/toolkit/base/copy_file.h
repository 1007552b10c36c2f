// Copies of files.
#pragma once

#include <filesystem>

namespace toolkit {

/// Copies the content and the modification time, not the mode: a new copy is writable. The copy is
/// written as writeFile does: it is whole or not there. A copy onto itself is failure 70; content
/// above 256 MiB is 7.
void copyFile(const std::filesystem::path& source, const std::filesystem::path& target);

/// Copies content and modification time to a file that isn't there yet, as writeNewFile does.
void copyNewFile(const std::filesystem::path& source, const std::filesystem::path& target);

} // namespace toolkit
