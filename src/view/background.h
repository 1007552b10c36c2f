// What the form shows round the card.
#pragma once

#include "toolkit/bitmap.h"

namespace zev {

struct Zevlin;

/// Tiles the form with the background pattern and prints the version in its bottom left corner.
void CreateBG(Zevlin& form);

} // namespace zev
