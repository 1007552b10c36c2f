// Writing the layout from the controls.
#pragma once

namespace zev {

struct Zevlin;

/// Writes Definitions.Ini. Without fields nothing is written; a failure ends the program.
void MSaveShapes_Click(Zevlin& form);

/// The same where the player hasn't asked for it: a failure is noted, and false.
bool saveShapesUnasked(Zevlin& form);

/// The name under which a check-point sets the layout's file aside.
constexpr const char* setAsideName = "$$TempDef.Ini";

/// The player has saved another layout: what a RestoreShapes that failed has left is out of date.
void dropSetAside(Zevlin& form);

} // namespace zev
