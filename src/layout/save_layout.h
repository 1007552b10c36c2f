// Writing the layout from the controls.
#pragma once

namespace zev {

struct Zevlin;

/// Writes Definitions.Ini. Without fields nothing is written; a failure ends the program.
void MSaveShapes_Click(Zevlin& form);

/// The same where the player hasn't asked for it: a failure is noted, and false.
bool saveShapesUnasked(Zevlin& form);

} // namespace zev
