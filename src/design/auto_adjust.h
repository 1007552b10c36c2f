// Auto-adjust: moving every field to the printed line or word that it belongs to.
#pragma once

#include "design/find_line.h"
#include "design/find_word.h"

namespace zev {

struct Zevlin;

/// Moves all marks, then all texts. A word that a circle was moved to is gone for the fields that
/// follow. Nothing is written. A failure is told, and leaves the card hidden.
void MAutoAdjust_Click(Zevlin& form);

/// findLine, traced; a failure is 0.
float FindHVAdj(Zevlin& form, const SearchedPicture& picture, const LineSearch& search,
                float& HAdj);

/// findWord, traced; a failure is no way at all.
WayToInk FindCircleAdj(Zevlin& form, SearchedPicture& picture, const CircleEdges& circle);

} // namespace zev
