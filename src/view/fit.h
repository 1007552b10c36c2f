// Fitting the card to the screen.
#pragma once

namespace zev {

struct Zevlin;

/// Toggles fit to width; while the program initializes it only computes the scale of a fit that the
/// options ask for.
void MFitScreenWidth_Click(Zevlin& form);

/// The same for the height. Only a task bar at the bottom of the screen is left uncovered.
void MFitScreenHeight_Click(Zevlin& form);

} // namespace zev
