// Names in a folder. They are compared without regard to case, as the platform of the first data
// folders did, so a folder that was copied from there is read as it was.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit {

/// The entry of the folder with this name, the exact spelling first, else without regard to case.
[[nodiscard]] std::optional<std::filesystem::path> findFile(const std::filesystem::path& folder,
                                                            std::string_view name);

/// The path of findFile, or where the file would be made.
[[nodiscard]] std::filesystem::path resolveFile(const std::filesystem::path& folder,
                                                std::string_view name);

/// Names of the regular files in the folder that end in `ending` (any case), sorted without regard
/// to case; a name that the code page can't hold is left out. An unreadable folder gives none.
[[nodiscard]] std::vector<std::string> listFiles(const std::filesystem::path& folder,
                                                 std::string_view ending);

} // namespace toolkit
