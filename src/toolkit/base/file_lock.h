// A lock that tells the files of a living copy of the program from those of a dead one.
#pragma once

#include <filesystem>
#include <memory>

namespace toolkit {

class FileHandle;

/// The lock is a file of its own, which the system holds for the process: however that ends, the
/// lock is free then, and its file can be taken by another. Where a file system knows no locks,
/// each process takes it.
class FileLock {
  public:
    FileLock();
    /// Gives it back.
    ~FileLock();
    FileLock(FileLock&&) noexcept;
    FileLock& operator=(FileLock&&) noexcept;

    /// Takes the lock, unless another holder has it or its file can't be made; true if this one has
    /// it now. The folder must exist.
    [[nodiscard]] bool take(const std::filesystem::path& file);
    [[nodiscard]] bool isHeld() const;
    /// Gives it back; its file goes.
    void release();

  private:
    std::unique_ptr<FileHandle> file_;
};

} // namespace toolkit
