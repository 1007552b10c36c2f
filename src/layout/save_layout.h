// Writing the layout from the controls.
#pragma once

namespace zev {

struct Zevlin;

/// Writes Definitions.Ini. Without fields nothing is written; a failure ends the program.
void MSaveShapes_Click(Zevlin& form);

/// The same where the player hasn't asked for it: a failure is noted and the result is false.
bool saveShapesUnasked(Zevlin& form);

/// The name under which a check-point sets the layout's file aside.
constexpr const char* setAsideName = "$$TempDef.Ini";

/// Deletes the layout that a failed RestoreShapes has left set aside: the player has saved another
/// one since.
void dropSetAside(Zevlin& form);

} // namespace zev
