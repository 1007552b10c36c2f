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

/// Replaces the file: writes a new one beside it ("$$NAME.part"), waits until its content is on the
/// disk, renames it over the old one, and waits for the folder. So whenever the program, the system
/// or the disk fails, and wherever another program looks, the file is the old one or the new one,
/// whole. Mode and links are kept. After a failure nothing is left beside.
///
/// Not by Qt's QSaveFile: Qt 6.4's ignores a sync that fails, doesn't sync the folder, and hides
/// which failure it was.
///
/// Only where the folder takes no other file, or lets none take this one's place, but the file
/// itself can be written, and for devices, it is written where it stands, and synced; a disk
/// without room leaves the old content there, too, but a cut in the middle may cost both.
///
/// Failures 52, 70, 75, 76, 61, 57. Where the folder alone can't be synced, the new content stands
/// although the call fails.
void writeFile(const std::filesystem::path& path, std::string_view content);
/// Writes a file that nobody reads after a crash: where it stands, and without waiting for the
/// disk. A half-written one is removed before the failure is raised.
void writeTemporaryFile(const std::filesystem::path& path, std::string_view content);
/// Adds to the file, which is made where it isn't there. Doesn't wait for the disk.
void appendFile(const std::filesystem::path& path, std::string_view content);

/// Copies the content and the modification time, not the mode: a new copy is writable. The copy is
/// written as writeFile does: it is whole or not there. A copy onto itself is failure 70; content
/// above 256 MiB is 7.
void copyFile(const std::filesystem::path& source, const std::filesystem::path& target);

/// Writes a file that isn't there yet: as writeFile, but never over one that is there by then,
/// however shortly: failure 58, or 75 for a folder. Links aren't followed.
void writeNewFile(const std::filesystem::path& path, std::string_view content);
/// The same with the content and the modification time of another file.
void copyNewFile(const std::filesystem::path& source, const std::filesystem::path& target);

/// Renames; an existing target is failure 58.
void renameFile(const std::filesystem::path& source, const std::filesystem::path& target);
/// Renames in one step over the target, which may be there or not, and waits until the folder is on
/// the disk. Failures 53, 70, 75 for a folder, 76, 57. The content isn't synced here.
void replaceByRename(const std::filesystem::path& source, const std::filesystem::path& target);
/// Failures 53, 70, 75 for a folder.
void deleteFile(const std::filesystem::path& path);
/// Deletes what replacing left beside a file when the program was killed in the middle of it; not
/// what another running program is writing. What can't be deleted stays.
void deleteLeftOvers(const std::filesystem::path& folder);

/// Modification time in whole seconds. Failure 53.
[[nodiscard]] std::time_t fileTime(const std::filesystem::path& path);
[[nodiscard]] std::uintmax_t fileLength(const std::filesystem::path& path);

} // namespace toolkit
