// A disk of a few megabytes that a test can fill. Where the system lets no one but its
// administrator make one, the test says so and is skipped.
#pragma once

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include <sched.h>
#include <sys/mount.h>

namespace test_system {

class SmallDisk {
  public:
    /// Mounts the disk on the folder, whose own content is hidden as long as the disk lives. Other
    /// processes don't see the disk.
    SmallDisk(std::filesystem::path folder, int kilobytes) : folder_(std::move(folder)) {
        const std::string size = "size=" + std::to_string(kilobytes) + "k";
        if (unshare(CLONE_NEWNS) != 0 ||
            mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("none", folder_.c_str(), "tmpfs", 0, size.c_str()) != 0)
            refusal_ = std::strerror(errno);
    }
    ~SmallDisk() {
        if (isThere()) umount2(folder_.c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] bool isThere() const { return refusal_.empty(); }
    /// Why the disk couldn't be made.
    [[nodiscard]] const std::string& refusal() const { return refusal_; }

    /// Fills the disk except for `room` bytes, in whole blocks.
    void fill(std::uintmax_t room = 0) const {
        const auto free = std::filesystem::space(folder_).free;
        std::ofstream filler(folder_ / fillerName, std::ios::binary | std::ios::app);
        filler << std::string(free > room ? free - room : 0, 'x') << std::flush;
    }
    void makeReadOnly() const {
        mount("none", folder_.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr);
    }
    void makeWritable() const { mount("none", folder_.c_str(), nullptr, MS_REMOUNT, nullptr); }
    void giveRoom() const { std::filesystem::remove(folder_ / fillerName); }

  private:
    static constexpr const char* fillerName = "filler";

    std::filesystem::path folder_;
    std::string refusal_;
};

} // namespace test_system
