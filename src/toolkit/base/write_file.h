// Writing files, so that a failure in the middle costs neither the old content nor the new.
#pragma once

#include <filesystem>
#include <string_view>

namespace toolkit {

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

/// Writes a file that isn't there yet: as writeFile, but never over one that is there by then,
/// however shortly: failure 58, or 75 for a folder. Links aren't followed.
void writeNewFile(const std::filesystem::path& path, std::string_view content);

/// Deletes what replacing left beside a file when the program was killed in the middle of it; not
/// what another running program is writing. What can't be deleted stays.
void deleteLeftOvers(const std::filesystem::path& folder);

} // namespace toolkit
