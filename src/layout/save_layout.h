// Writing the layout from the controls.
#pragma once

#include <string>

namespace zev {

struct Zevlin;

/// Writes Definitions.Ini. Without fields nothing is written; a failure ends the program.
void MSaveShapes_Click(Zevlin& form);

/// The same where the player hasn't asked for it: a failure is noted, and false.
bool saveShapesUnasked(Zevlin& form);

/// What Definitions.Ini would say now.
[[nodiscard]] std::string layoutText(const Zevlin& form);

/// The layout's file name in the data folder.
constexpr const char* layoutFileName = "Definitions.Ini";

} // namespace zev
