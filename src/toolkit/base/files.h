// Whole reads, renames and deletions of files.
#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <string>

#include "toolkit/base/file_handle.h"

namespace toolkit {

/// Whole content. Failures 53, 70, 75 for a folder in its place, 76 for a missing folder on the
/// way, 57, and 7 above 256 MiB.
[[nodiscard]] std::string readFile(const std::filesystem::path& path);
/// The same of a file that is open already. Failures 57, and 7.
[[nodiscard]] std::string readFile(FileHandle file);

/// Whether there is anything of that name; a folder that can't be read has nothing.
[[nodiscard]] bool isThere(const std::filesystem::path& path);
/// Does nothing where the file is there. Failures 53, 70, 75 for a folder.
void requireFile(const std::filesystem::path& path);

/// Renames; an existing target is failure 58.
void renameFile(const std::filesystem::path& source, const std::filesystem::path& target);
/// Renames in one step over the target, which may be there or not, and waits until the folder is on
/// the disk. Failures 53, 70, 75 for a folder, 76, 57. The content isn't synced here.
void replaceByRename(const std::filesystem::path& source, const std::filesystem::path& target);
/// Failures 53, 70, 75 for a folder.
void deleteFile(const std::filesystem::path& path);

/// Modification time in whole seconds. Failure 53.
[[nodiscard]] std::time_t fileTime(const std::filesystem::path& path);
[[nodiscard]] std::uintmax_t fileLength(const std::filesystem::path& path);

} // namespace toolkit
