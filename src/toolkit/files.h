// Files of the data folder: names without regard to case, whole reads, checked writes.
#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit {

/// The entry of the folder with this name, the exact spelling first, else without regard to case.
[[nodiscard]] std::optional<std::filesystem::path> findFile(const std::filesystem::path& folder,
                                                            std::string_view name);

/// The path of findFile, or where the file would be made.
[[nodiscard]] std::filesystem::path resolveFile(const std::filesystem::path& folder,
                                                std::string_view name);

/// Names of the regular files in the folder that end in `ending` (any case), sorted without regard
/// to case; a name that the code page can't hold is left out. An unreadable folder gives none.
[[nodiscard]] std::vector<std::string> listFiles(const std::filesystem::path& folder,
                                                 std::string_view ending);

/// Whole content. Failures 53, 70, 75 for a folder in its place, 76 for a missing folder on the
/// way, 57, and 7 above 256 MiB.
[[nodiscard]] std::string readFile(const std::filesystem::path& path);

/// Replaces the file; returns only when flush and close were seen to succeed. The old content stays
/// until the new one is whole beside it, so that a disk without room costs neither; only where the
/// folder takes no other file is it gone from the start. Failures 52, 70, 75, 76, 61, 57.
void writeFile(const std::filesystem::path& path, std::string_view content);
/// The same for a small file that is written again and again: where old and new content are no more
/// than a disk writes as a whole, it is overwritten where it stands. To put a new file in its place
/// makes some systems wait for the disk.
void updateFile(const std::filesystem::path& path, std::string_view content);
void appendFile(const std::filesystem::path& path, std::string_view content);

/// Copies the content and the modification time, not the mode: a new copy is writable. A
/// half-written copy is removed before the failure is raised. A copy onto itself is failure 70.
void copyFile(const std::filesystem::path& source, const std::filesystem::path& target);

/// Renames; an existing target is failure 58.
void renameFile(const std::filesystem::path& source, const std::filesystem::path& target);
/// Failures 53, 70, 75 for a folder.
void deleteFile(const std::filesystem::path& path);

/// Modification time in whole seconds. Failure 53.
[[nodiscard]] std::time_t fileTime(const std::filesystem::path& path);
[[nodiscard]] std::uintmax_t fileLength(const std::filesystem::path& path);

/// Whether a file can be made or replaced in the folder.
[[nodiscard]] bool isFolderWritable(const std::filesystem::path& folder);

} // namespace toolkit
