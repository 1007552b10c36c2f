// Driving the real window from tests: events go to its widgets as the platform would send them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/bitmap.h"
#include "toolkit/control.h"
#include "toolkit/dialog.h"
#include "toolkit/window_parts.h"

namespace toolkit::test {

// A ProgramEnded that a handler throws leaves the helper that sent the event. Values that a test
// has set by itself reach the widgets before the event does.

/// Points are twips relative to the card's top left corner.
void moveMouse(float x, float y, int buttons = 0, int shift = 0);
void pressMouse(float x, float y, int button = button::left, int shift = 0);
void releaseMouse(float x, float y, int button = button::left, int shift = 0);
/// Move, press, release at one point.
void click(float x, float y, int button = button::left, int shift = 0);
void doubleClick(float x, float y);
/// At the middle of the card, over whatever lies there; 120 is one notch away from the player.
void turnWheel(int rotation);
/// The same over another control that is shown.
void turnWheelOver(const Control& control, int rotation);

/// A place for the mouse helpers above, wherever it lies.
struct PointOnCard {
    float x = 0;
    float y = 0;
};
/// A point in a control that is shown, the middle of one, of a label of a panel, of a list's row.
[[nodiscard]] PointOnCard pointIn(const Control& control, float x, float y);
[[nodiscard]] PointOnCard pointOn(const Control& control);
[[nodiscard]] PointOnCard pointOn(const Panel& panel, const Label& label);
[[nodiscard]] PointOnCard pointOnRow(const ListBox& list, int row);

/// A key by virtual code, pressed or released on the widget that has the focus.
void pressKey(int keyCode, int shift = 0, std::string_view text = {});
void releaseKey(int keyCode, int shift = 0);
/// The key at the place of the zero, on a layout on which it brings this character (UTF-8).
void pressAtPlaceOfZero(std::string_view character, int shift);
/// One repetition of a key that is held down.
void repeatKey(int keyCode, int shift = 0);
/// The two halves of a stroke with the system's time of each, in milliseconds above 0.
void pressKeyAt(unsigned time, int keyCode, int shift = 0);
void releaseKeyAt(unsigned time, int keyCode, int shift = 0);
/// Press and release.
void typeKey(int keyCode, int shift = 0, std::string_view text = {});
/// Each character of a UTF-8 text as a key of its own, pressed and released.
void typeText(std::string_view utf8);
/// What an input method sends: the text that it is still composing, and the one that is decided.
void compose(std::string_view preedit, std::string_view committed);
/// Puts a UTF-8 text on the clipboard, as another program does.
void fillClipboard(std::string_view utf8);

/// A menu item, as if the player had opened its menu and chosen it: captions without "&", joined by
/// ">", as in "File>Save". False where it isn't shown or enabled.
bool chooseMenu(std::string_view captionPath);
/// Whether the player who opens its menu sees a check mark at it.
[[nodiscard]] bool showsCheck(std::string_view captionPath);
/// The player makes the window larger or shifts it, by pixels.
void resizeWindow(int wider, int higher);
void shiftWindow(int toTheRight, int down);
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
/// The card's timers run out now.
void elapseCardTimers();
/// The program's alarms run out now.
void elapseAlarms();

/// What the card shows, at one pixel a pixel.
[[nodiscard]] Bitmap grabCard();
[[nodiscard]] Bitmap grabWindow();
/// What the card shows on a screen with so many pixels to a logical one, side by side.
[[nodiscard]] Bitmap grabCardAt(double pixelRatio);

// For tests of the window itself: what the platform shows.
/// The picture of the mouse pointer over the card; empty where it is one of the platform's own.
[[nodiscard]] Bitmap shownPointer();
/// The window's icon in that size.
[[nodiscard]] Bitmap shownIcon(int size);
[[nodiscard]] bool isShown(const Control& control);
[[nodiscard]] std::string shownText(const TextBox& box);
/// The tool tip that comes up when the pointer rests there, over the control; empty for none.
[[nodiscard]] std::string toolTipAt(const Control& control, PointOnCard point);
/// Whether the control looks as if it can't be used.
[[nodiscard]] bool isGreyed(const Control& control);
/// Whether the platform sends its keys to the control.
[[nodiscard]] bool hasPlatformFocus(const Control& control);

/// Whether the key comes to the handlers before any shortcut of the platform's own can take it.
[[nodiscard]] bool isClaimed(int keyCode, int shift);

/// How often and how much of the card was painted since this was first asked of its window.
struct CardPaints {
    int paints = 0;
    std::int64_t pixels = 0;
};
[[nodiscard]] CardPaints cardPaints();

/// A box on the screen.
struct ShownBox {
    std::string title;
    std::string text;
    bool plain = false; ///< whether marks like <b> show as they are
};
/// The next box that comes to the screen is noted and ended by its button; none closes its window.
void endNextBox(std::optional<Answer> answer, ShownBox& seen);
/// The next input box gets this text and its OK button.
void fillNextInputBox(std::string_view utf8, ShownBox& seen);
/// The row of the next pop-up menu is chosen.
void chooseInNextPopup(int row);

/// A dialog of the platform that came up.
struct ShownDialog {
    std::string title;
    std::vector<std::string> buttons;
};
/// The next dialog that is no box is noted and cancelled.
void endNextDialog(ShownDialog& seen);

/// Works the lists, options and buttons of a form that is open. Lists are counted from the top.
class DialogDriver {
  public:
    [[nodiscard]] std::string title() const;
    [[nodiscard]] std::vector<std::string> labels() const;
    [[nodiscard]] std::vector<std::string> listRows(int list) const;
    [[nodiscard]] std::string chosen(int list) const;
    /// Chooses the row in the list that has it; false where none does.
    [[nodiscard]] bool choose(std::string_view row);
    void choose(int list, int row);
    void typeInto(int list, int keyCode, std::string_view text);
    void turnOn(std::string_view option);
    [[nodiscard]] bool isOn(std::string_view option) const;
    [[nodiscard]] bool isEnabled(std::string_view option) const;
    void press(std::string_view button);
};
/// Runs once the next form is there, which must close in it.
void driveNextDialog(std::function<void(DialogDriver&)> act);

/// The text on the clipboard, in UTF-8.
[[nodiscard]] std::string clipboardText();

/// The picture on the clipboard, empty if there is none.
[[nodiscard]] Bitmap clipboardPicture();

} // namespace toolkit::test
