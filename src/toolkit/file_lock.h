// A lock that tells the files of a living copy of the program from those of a dead one.
#pragma once

#include <filesystem>
#include <memory>

namespace toolkit {

/// The lock is a file of its own. It goes with the process that holds it, however that ends; what a
/// dead process left behind can be taken over.
class FileLock {
  public:
    FileLock();
    ~FileLock();
    FileLock(FileLock&&) noexcept;
    FileLock& operator=(FileLock&&) noexcept;

    /// Takes the lock, unless a living process has it or its file can't be made; true if this one
    /// holds it now. The folder must exist.
    [[nodiscard]] bool take(const std::filesystem::path& file);
    [[nodiscard]] bool isHeld() const;
    /// Gives it back; its file goes.
    void release();

  private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace toolkit
