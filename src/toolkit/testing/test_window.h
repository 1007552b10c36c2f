// Driving the real window from tests: events go to its widgets as the platform would send them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/model/control.h"
#include "toolkit/model/window_parts.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/window/dialog.h"

namespace toolkit::test {

// A ProgramEnded that a handler throws leaves the helper that sent the event. Values that a test
// has set by itself reach the widgets before the event does.

/// A menu item, as if the player had opened its menu and chosen it: captions without "&", joined by
/// ">", as in "File>Save". False where it isn't shown or enabled.
bool chooseMenu(std::string_view captionPath);
/// Whether the player who opens its menu sees a check mark at it.
[[nodiscard]] bool showsCheck(std::string_view captionPath);
/// The text at the end of the menu bar that is only read, and where it stands on the bar.
struct ShownReadOut {
    std::string text; ///< empty where it isn't shown
    int left = 0;
    int width = 0;
    bool isWhole = false; ///< not cut, and under no menu
};
[[nodiscard]] ShownReadOut shownReadOut();
/// The player makes the window larger or shifts it, by pixels.
void resizeWindow(int wider, int higher);
void shiftWindow(int toTheRight, int down);
enum class Extent { Normal, Maximised, FullScreen };
/// The player gives the window the whole screen, or takes it back.
void changeExtent(Extent extent);
[[nodiscard]] Extent windowExtent();
/// Through how many places and sizes the window goes while `act` runs.
[[nodiscard]] int countPlaces(const std::function<void()>& act);
/// Asks the window to close; the answer waits in the queue.
void requestClose();
/// The same and lets the answer run.
void closeWindow();
/// The session ends: the same, but for the question that the form is asked.
void endSession();
/// Runs once, from the event loop of the running program.
void whenRunning(std::function<void()> act);
/// Lets everything that waits in the queue run.
void settle();
/// The same, and deletes what waits until the event loop has come round, as it does between two
/// events of the running program.
void endEvent();
/// The program's alarms run out now.
void elapseAlarms();

/// What the card shows, one pixel for each logical one.
[[nodiscard]] Bitmap grabCard();
[[nodiscard]] Bitmap grabWindow();
/// What the card shows on a high-DPI screen with so many pixels for each logical one, in width as
/// in height.
[[nodiscard]] Bitmap grabCardAt(double pixelRatio);

// For tests of the window itself: what the platform shows.
/// The picture of the mouse pointer over the card; empty where it is one of the platform's own.
[[nodiscard]] Bitmap shownPointer();
/// Whether it is the platform's I-beam.
[[nodiscard]] bool showsIBeam();
/// The window's icon in that size.
[[nodiscard]] Bitmap shownIcon(int size);
[[nodiscard]] bool isShown(const Control& control);
[[nodiscard]] std::string shownText(const TextBox& box);
/// Whether the platform sends its keys to the control.
[[nodiscard]] bool hasPlatformFocus(const Control& control);

/// How often and how much of the card was painted since this was first asked of its window.
struct CardPaints {
    int paints = 0;
    std::int64_t pixels = 0;
};
[[nodiscard]] CardPaints cardPaints();

} // namespace toolkit::test
