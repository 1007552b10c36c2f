// Moving the card inside the form.
#pragma once

namespace zev {

struct Zevlin;

/// One step of the wheel, a tenth of the card's height; it can take the card out of sight. With
/// Ctrl it zooms; x and y, pixels of the screen, are where the pointer is.
void MouseWheel(Zevlin& form, int keys, int rotation, int x, int y);

/// Pulls the card so that the field with this item number lies in the work area, and whole in what
/// can be seen of the form, if that is large enough.
void CheckOnScreen(Zevlin& form, int item);

/// Ends the walk's rest on a mark. If that was the last field, TAB waits for the next one.
void endRest(Zevlin& form);

/// Moves the card by a key that does so (HOME, END, PAGE UP, PAGE DOWN, arrows); true if it did.
bool moveCardByKey(Zevlin& form, int keyCode, int shift);

/// Says behind the card how to get it back once hardly any of it is in sight.
void showWayHome(Zevlin& form);

} // namespace zev
