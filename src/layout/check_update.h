// Offering a newer installed layout.
#pragma once

namespace zev {

struct Zevlin;

/// Where the data folder holds a numbered layout of a newer version, asks whether it may replace
/// the player's. A failure ends the program.
void CheckIniUpdate(Zevlin& form);

/// Asks whether the layout may be replaced; a refusal is answered with what it may cost.
[[nodiscard]] bool isUpdateWanted();

} // namespace zev
