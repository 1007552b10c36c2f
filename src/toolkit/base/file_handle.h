// An open file of the platform with its failures as run-time errors.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>

#include "toolkit/base/file_calls.h"

namespace toolkit {

/// A failure of the call that has just set errno, for this path: a folder in the place of the file
/// is 75, a missing folder on the way 76, whatever the platform says.
[[noreturn]] void failFile(const std::filesystem::path& path, int errorCode);
/// The same for what the filesystem library tells; does nothing where it tells of no error.
void checkFile(const std::filesystem::path& path, const std::error_code& error);

/// Each call goes to the system at once, so that each failure is seen where it happens.
class FileHandle {
  public:
    /// Opens the file. Failures 53, 67, 70, 75, 76, 61, 57, and 55 for one beside that is taken.
    FileHandle(std::filesystem::path path, FileMode mode);
    ~FileHandle();
    FileHandle(FileHandle&& other) noexcept;
    FileHandle& operator=(FileHandle&&) = delete;
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    /// Reads into the buffer and returns what was read, empty at the end of the file.
    [[nodiscard]] std::string_view read(std::span<char> buffer);
    void write(std::string_view content);
    /// Returns when the content is on the disk.
    void sync();
    /// Only after it has returned is the content written.
    void close();
    /// Puts the file into another's place in one step; nothing is written to it any more.
    [[nodiscard]] std::error_code renameOver(const std::filesystem::path& target);
    /// The same where no file stands; the error of one that is there is EEXIST's.
    [[nodiscard]] std::error_code renameToNew(const std::filesystem::path& target);
    /// Removes the file.
    void discard();

  private:
    std::filesystem::path path_;
    int file_; ///< -1: closed
};

} // namespace toolkit
