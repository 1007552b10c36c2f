// Building the card: options, picture, fonts, layout, one control per field.
#pragma once

namespace zev {

struct Zevlin;

/// Runs at the start and for each change of the card's size. At the start a failure is told with
/// its step and ends the program. In a rebuild the program goes on with the settings and the layout
/// that it has in memory, and notes what it couldn't read or write.
void Initialize(Zevlin& form);

} // namespace zev
