// Where the program's files and the player's folders are.
#pragma once

#include <filesystem>

namespace toolkit {

/// The folder with the installed data (numbered layouts, readme, sample cards): "zevlin-files"
/// beside the program, or the share folder of an installed one.
[[nodiscard]] std::filesystem::path programFolder();

/// The shell folder with this identifier; 5 is the Documents folder, created when absent. Empty
/// where the system has none.
[[nodiscard]] std::filesystem::path specialFolder(int identifier);

/// The Documents folder, made or not; empty where the system has none.
[[nodiscard]] std::filesystem::path documentsFolder();

/// The folder for what the program keeps from one run to the next beside the player's files:
/// $XDG_STATE_HOME/zevlin, or .local/state/zevlin in the home folder; Zevlin in the local
/// application data on Windows. It need not exist.
[[nodiscard]] std::filesystem::path stateFolder();

} // namespace toolkit
