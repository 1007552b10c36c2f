// The printed word that a circle belongs around, found in the pixels of the card.
#pragma once

#include "design/searched_picture.h"

namespace zev {

/// The outermost pixels of a circle's ink, left or upper edges, twips.
struct CircleEdges {
    float left = 0;
    float right = 0;
    float top = 0;
    float bottom = 0;
};

/// How far a field must go to its ink, twips.
struct WayToInk {
    float right = 0;
    float down = 0;
};

/// The way from a circle to the middle of the first printed word from its left edge on, which is
/// erased. Without one it is the way to the middle of the card. `marker` tells a failure's place:
/// 100 reckoning, 200 looking along the row, 300 taking the word, 400 its box, 500 the way. A word
/// of more than 50000 pixels is failure 9, a place beyond 32 bits failure 6.
[[nodiscard]] WayToInk findWord(SearchedPicture& picture, const CircleEdges& circle, int& marker);

} // namespace zev
