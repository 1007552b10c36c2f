// What the form shows round the card.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Tiles the form with the texture's picture and prints the version in the bottom left corner.
/// `scaleFactor` is a tile's size over its picture's, 1 where it isn't from 0.05 to 10; `yOffset`
/// twips stay free at the top, none where they are negative or more than the form is high.
void CreateBG(Zevlin& form, const toolkit::PictureBox& texture, float scaleFactor, float yOffset);

} // namespace zev
