// Writing the layout from the controls.
#pragma once

namespace zev {

struct Zevlin;

/// Writes Definitions.Ini. Without fields nothing is written; a failure ends the program,
/// but never in the middle of a job, which then sets LayoutUnwritten.
void MSaveShapes_Click(Zevlin& form);

/// The layout's file name in the data folder.
constexpr const char* layoutFileName = "Definitions.Ini";

} // namespace zev
