// The mouse, for tests: its events go to the widgets as the platform would send them.
#pragma once

#include "toolkit/model/control.h"

namespace toolkit::test {

/// Points are twips relative to the card's top left corner.
void moveMouse(float x, float y, int buttons = 0, int shift = 0);
void pressMouse(float x, float y, int button = button::left, int shift = 0);
void releaseMouse(float x, float y, int button = button::left, int shift = 0);
/// Move, press, release at one point.
void click(float x, float y, int button = button::left, int shift = 0);
void doubleClick(float x, float y);
/// At the middle of the card, over whatever lies there; 120 is one notch away from the player.
void turnWheel(int rotation, int shift = 0);

/// A place for the mouse helpers, wherever it lies.
struct PointOnCard {
    float x = 0;
    float y = 0;
};

} // namespace toolkit::test
