// The player's layout file, copied from the installed ones where it is missing.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;
struct InitializeRun;

/// What a layout that was replaced is called in the data folder.
constexpr const char* replacedLayoutName = "Definitions.old";

/// The layout in the data folder. A missing one is copied from the program folder, by the screen's
/// resolution, but never over one that turns up meanwhile; where that is missing too, a box says so
/// and the program ends. In a rebuild that is failure 53, and a folder out of sight 76.
[[nodiscard]] std::filesystem::path findLayout(Zevlin& form, InitializeRun& run);

/// Asks once in a run, when the layout was made at another resolution, whether to take the
/// installed one instead. On Yes the program ends.
void checkScreenFonts(Zevlin& form);

} // namespace zev
