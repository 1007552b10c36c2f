// The keyboard, for tests: its events go to the widgets as the platform would send them.
#pragma once

#include <string_view>

namespace toolkit::test {

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

/// Whether the key comes to the handlers before any shortcut of the platform's own can take it.
[[nodiscard]] bool isClaimed(int keyCode, int shift);

} // namespace toolkit::test
