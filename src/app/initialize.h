// Building the card: options, picture, fonts, layout, one control per field.
#pragma once

namespace zev {

struct Zevlin;

/// Runs at start and for each change of the card's size. A failure is told with its step and ends
/// the program.
void Initialize(Zevlin& form);

} // namespace zev
