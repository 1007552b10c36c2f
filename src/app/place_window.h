// Giving the window the card's size and its place on the screen.
#pragma once

namespace zev {

struct Zevlin;
struct InitializeRun;

/// The card goes to the top left; the window takes its size as far as the screen allows, centred
/// beside the task bar. While printing, and where it fills the screen, the window stays as it is.
void placeWindow(Zevlin& form, InitializeRun& run);

} // namespace zev
