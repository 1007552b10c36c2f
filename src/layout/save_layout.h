// Writing the layout from the controls.
#pragma once

#include <filesystem>

#include "layout/layout_file.h"

namespace zev {

struct Zevlin;

/// Writes Definitions.Ini. Without fields nothing is written; a failure ends the program.
void MSaveShapes_Click(Zevlin& form);

/// The same where the player hasn't asked for it: a failure is noted and the result is false.
bool saveShapesUnasked(Zevlin& form);

/// Deletes the layout that a failed RestoreShapes has left set aside: the player has saved another
/// one since. That of a copy of the program that has died is kept.
void dropSetAside(Zevlin& form);

/// Gives the layout that a dead copy has set aside a name that no file has, Definitions.kept or one
/// with a number: a design that the player saved may be nowhere else. One that is there under
/// another name anyway goes. Failures as those of files.
void keepSetAside(Zevlin& form, const std::filesystem::path& setAside);

} // namespace zev
