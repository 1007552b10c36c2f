// The card with its labels as one picture.
#pragma once

#include "toolkit/model/control.h"

namespace toolkit {

/// Makes the labels of the open window, as their values stand now, part of the card's picture,
/// one pixel for each logical one; also the parts that no screen shows. Without a window the
/// picture stays as it is. What else shares the picture keeps it without the labels.
void flatten(PictureBox& card);

} // namespace toolkit
