// What lies over the form besides the card.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Fills the form with the chooser's gradient, light above. With the panel, the chooser's panel P3
/// continues the gradient without a seam.
enum class IncludePanel { No, Yes };
void GradientFill(Zevlin& form, IncludePanel includePanel);

/// Rounds the panel's corners; the radius in pixels.
void MakeObjRounded(Zevlin& form, toolkit::Panel& panel, int radius);

/// Takes the help page away and gives the card back to the player. Whoever hides the page calls
/// this.
void hideHelp(Zevlin& form);

} // namespace zev
