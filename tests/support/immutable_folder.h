// A folder that the administrator has locked.
#pragma once

#include <filesystem>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace test_system {

/// Locks the folder for as long as it lives: nothing can be made in it, renamed or removed, not
/// even by the superuser. The files in it can still be written.
class ImmutableFolder {
  public:
    explicit ImmutableFolder(const std::filesystem::path& folder)
        : folder_(open(folder.c_str(), O_RDONLY)) {
        set(FS_IMMUTABLE_FL);
    }
    ~ImmutableFolder() {
        set(0);
        close(folder_);
    }
    ImmutableFolder(const ImmutableFolder&) = delete;
    ImmutableFolder& operator=(const ImmutableFolder&) = delete;
    /// Whether this file system, and this user's rights, allow it.
    [[nodiscard]] bool isThere() const { return isSet_; }

  private:
    void set(int flags) { isSet_ = ioctl(folder_, FS_IOC_SETFLAGS, &flags) == 0; }

    int folder_;
    bool isSet_ = false;
};

} // namespace test_system
