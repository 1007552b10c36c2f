// Measuring where the ink of marks and text falls inside their labels on this machine.
#pragma once

#include "toolkit/model/label.h"

namespace zev {

struct Zevlin;

/// Edges of a character's ink in its label, twips. A negative right or top on entry asks for it to
/// be measured too.
struct InkMeasure {
    float left = 0;
    float bottom = 0;
    float right = 0;
    float top = 0;
};

/// Draws the label's caption in its font and measures its ink. Without ink it returns false and the
/// measure stays as it was.
bool Calibrate(Zevlin& form, const toolkit::Label& label, InkMeasure& measure);

/// Fills FontOffsets and CircleAdjust for the present font sizes.
void GetOffsets(Zevlin& form);

} // namespace zev
