// The system's calls on open files. Internal to the toolkit's sources: one source for each system.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>

namespace toolkit {

/// Update writes over a file from its start and keeps what lies behind. New makes a file that isn't
/// there. Beside empties or makes a file that no other running program writes at the same time.
enum class FileMode { Read, Replace, Append, Update, New, Beside };

namespace file_calls {

/// What stands for an open file, or -1 with errno set. FileMode::Beside: EWOULDBLOCK where another
/// program has the file.
[[nodiscard]] int openFile(const std::filesystem::path& path, FileMode mode);

/// Bytes read, 0 at the end of the file, or -1 with errno set.
[[nodiscard]] int readSome(int file, std::span<char> buffer);
/// Bytes written, or -1 with errno set.
[[nodiscard]] int writeSome(int file, std::string_view content);
/// Waits until the content is on the disk. False with errno set; what has no disk needs no waiting.
[[nodiscard]] bool syncFile(int file);
/// False with errno set; the file is closed all the same.
bool closeFile(int file);

/// Renames in one step, also over a file that is there.
[[nodiscard]] std::error_code renameOver(const std::filesystem::path& source,
                                         const std::filesystem::path& target);
/// Renames in one step where no file stands; EEXIST for one that is there.
[[nodiscard]] std::error_code renameToNew(const std::filesystem::path& source,
                                          const std::filesystem::path& target);
/// What becomes of a file that is in the way.
enum class Existing { Replaced, Kept };
/// The same for an open file. Where the system renames no open file, it is closed before and -1.
[[nodiscard]] std::error_code renameOpenFile(int& file, const std::filesystem::path& source,
                                             const std::filesystem::path& target,
                                             Existing existing);
/// Removes a file that is open or -1, and closes it.
void removeOpenFile(int file, const std::filesystem::path& path);
/// Waits until the names in the folder are on the disk, where a system has that and the player may
/// ask for it.
[[nodiscard]] std::error_code syncFolder(const std::filesystem::path& folder);

} // namespace file_calls
} // namespace toolkit
