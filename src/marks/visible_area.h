// What can be seen of the form, and how far the card must move for something to be in it.
#pragma once

#include "toolkit/window/screen.h"

namespace zev {

struct Zevlin;

/// A rectangle in twips.
struct Area {
    float left = 0;
    float top = 0;
    float right = 0;
    float bottom = 0;
};

/// What neither the screen's edges nor its task bar cut off the form's inside, relative to it.
[[nodiscard]] Area visibleArea(const Zevlin& form, const toolkit::TaskBar& bar);

/// Twips between a field that was brought into sight and the edge.
[[nodiscard]] float roomAroundField(const Zevlin& form);

/// How far a card must move so that `at` lies between the limits, with the margin to spare.
[[nodiscard]] float pull(float at, float low, float high, float margin);

/// How far a card must move so that a field on it is seen whole, with the margin around it. Of a
/// field that is larger than what can be seen, the beginning is.
[[nodiscard]] float pullWhole(float from, float to, float low, float high, float margin);

} // namespace zev
