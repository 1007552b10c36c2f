// Recolouring a field by its pop-up menu.
#pragma once

#include "design/design_field.h"

namespace zev {

struct Zevlin;

/// Opens the menu for the field, with its present colour checked.
void openColorMenu(Zevlin& form, DesignField field);

/// Gives the field whose menu is open a colour: 1 black, 2 red, 3 blue.
void mpopDesignColor_Click(Zevlin& form, int index);

} // namespace zev
