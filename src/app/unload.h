// The end of a run.
#pragma once

namespace zev {

struct Zevlin;

/// How the form came to be unloaded.
constexpr int unloadByPlayer = 0;
constexpr int unloadFromCode = 1;
constexpr int unloadBySession = 2;

/// Closes the chooser if it is open, else asks about unsaved changes; true refuses, and the form
/// stays.
[[nodiscard]] bool Form_Unload(Zevlin& form, int unloadMode);

/// Asks about unsaved changes and ends the program.
void MExit_Click(Zevlin& form);

} // namespace zev
