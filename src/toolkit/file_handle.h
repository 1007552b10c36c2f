// An open file of the platform with its failures as run-time errors.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace toolkit {

/// Update writes over a file from its start and keeps what lies behind.
enum class FileMode { Read, Replace, Append, Update };

/// A failure of the call that has just set errno, for this path: a folder in the place of the file
/// is 75, a missing folder on the way 76, whatever the platform says.
[[noreturn]] void failFile(const std::filesystem::path& path, int errorCode);

class FileHandle {
  public:
    /// Opens the file. Failures 53, 67, 70, 75, 76, 61, 57.
    FileHandle(std::filesystem::path path, FileMode mode);

    /// Reads into the buffer and returns what was read, empty at the end of the file.
    [[nodiscard]] std::string_view read(std::span<char> buffer);
    void write(std::string_view content);
    /// Flushes and closes. Only after it has returned is the content written.
    void close();

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::filesystem::path path_;
    std::unique_ptr<std::FILE, Closer> file_;
};

} // namespace toolkit
