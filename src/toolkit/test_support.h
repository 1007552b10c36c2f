// Driving the real window from tests: events go to its widgets as the platform would send them.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/bitmap.h"
#include "toolkit/control.h"
#include "toolkit/window.h"

namespace toolkit::test {

/// Points are twips relative to the card's top left corner.
void moveMouse(float x, float y, int buttons = 0, int shift = 0);
void pressMouse(float x, float y, int button = button::left, int shift = 0);
void releaseMouse(float x, float y, int button = button::left, int shift = 0);
/// Move, press, release at one point.
void click(float x, float y, int button = button::left, int shift = 0);
void doubleClick(float x, float y);
/// Rotation in 120ths.
void turnWheel(int rotation);

/// A key by virtual code, pressed or released on the widget that has the focus.
void pressKey(int keyCode, int shift = 0, std::string_view text = {});
void releaseKey(int keyCode, int shift = 0);
/// Press and release.
void typeKey(int keyCode, int shift = 0, std::string_view text = {});
/// Each character of a UTF-8 text as a key of its own, pressed and released.
void typeText(std::string_view utf8);
/// A menu item, as if chosen from the menu; false where it isn't shown or enabled.
bool chooseMenu(std::string_view captionPath);
/// Asks the window to close and lets the answer run.
void closeWindow();
/// Lets everything that waits in the queue run.
void settle();

/// What the card shows, at one pixel a pixel.
[[nodiscard]] Bitmap grabCard();
[[nodiscard]] Bitmap grabWindow();
/// What the platform shows of a control, for tests of the window itself.
[[nodiscard]] bool isShown(const Control& control);
[[nodiscard]] std::string shownText(const TextBox& box);

} // namespace toolkit::test
