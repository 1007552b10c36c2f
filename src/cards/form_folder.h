// A folder for the form in the place of Zevlin's own, which nothing is written to.
#pragma once

#include <filesystem>

#include "cards/command_options.h"
#include "cards/surroundings.h"

namespace zev {

/// Made new, open to nobody else, and removed with everything in it.
class TemporaryFolder {
  public:
    /// Trouble where it can't be made. Below the system's folder for such, or another one.
    explicit TemporaryFolder(const std::filesystem::path& parent = {});
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// Fills the folder with what the form reads from Zevlin's folder: options, layout, and a picture
/// that stands for the card's. The options are the player's, but for the view, the printer and the
/// trace. Trouble where one can't be read or written.
void fillFormFolder(const std::filesystem::path& folder, const CommandOptions& options,
                    const Surroundings& surroundings);

/// A player's options as the form is to have them: at full size.
[[nodiscard]] std::string formOptions(std::string_view players);

} // namespace zev
