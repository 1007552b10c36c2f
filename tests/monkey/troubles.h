// Troubles with the program's folders while it runs, and their repair.
#pragma once

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "support/small_disk.h"

namespace zev::test {

/// Whether the text begins as one of the list does.
template <typename List>
bool beginsAsOne(std::string_view text, const List& heads) {
    return std::ranges::any_of(heads,
                               [text](std::string_view head) { return text.starts_with(head); });
}

class Troubles {
  public:
    enum class Kind {
        None,
        LayoutRemoved,
        LayoutDamaged,
        LayoutCut,
        LayoutAFolder,
        OptionsRemoved,
        OptionsAFolder,
        OptionsGarbage,
        FolderGone,
        FolderAFile,
        DiskFull,
        DiskReadOnly,
        NoFileGrows,
        StateAFile,
        StateRemoved,
        count
    };

    /// Below `home`, on a disk of their own where that can be made.
    Troubles(std::filesystem::path dataFolder, std::filesystem::path stateFolder);
    ~Troubles();
    Troubles(const Troubles&) = delete;
    Troubles& operator=(const Troubles&) = delete;

    /// One at a time. False where this machine doesn't let that be done.
    bool strike(Kind kind);
    void mend();
    [[nodiscard]] Kind present() const { return present_; }
    [[nodiscard]] bool isOfFolder() const;
    [[nodiscard]] bool hindersJournal() const;
    /// Whether the trouble may be the reason for this trace line, which begins with "Error".
    [[nodiscard]] bool explains(std::string_view line) const;
    /// Whether there is a disk that can be filled.
    [[nodiscard]] bool hasDisk() const { return disk_ && disk_->isThere(); }

  private:
    void strikeFile(const std::filesystem::path& file);
    void makeFolderOf(const std::filesystem::path& file);
    [[nodiscard]] std::filesystem::path layout() const { return dataFolder_ / "Definitions.Ini"; }
    [[nodiscard]] std::filesystem::path options() const { return dataFolder_ / "ZEV.Ini"; }

    std::filesystem::path dataFolder_;
    std::filesystem::path stateFolder_;
    std::unique_ptr<test_system::SmallDisk> disk_;
    Kind present_ = Kind::None;
    std::string kept_; ///< the content that was struck
};

[[nodiscard]] std::string_view nameOf(Troubles::Kind kind);

} // namespace zev::test
