// Boxes on the screen, for tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/window/dialog.h"

namespace toolkit::test {

/// A box on the screen.
struct ShownBox {
    std::string title;
    std::string text;
    bool plain = false; ///< whether marks like <b> show as they are
    int width = 0;      ///< pixels
};
/// The next box that comes to the screen is noted and ended by its button; none closes its window.
void endNextBox(std::optional<Answer> answer, ShownBox& seen);
/// The next input box gets this text and its OK button.
void fillNextInputBox(std::string_view utf8, ShownBox& seen);
/// The upper left corner of a pop-up menu, in pixels among all screens.
struct PopupPlace {
    int x = 0;
    int y = 0;
};
/// The row of the next pop-up menu is chosen; its place is noted.
void chooseInNextPopup(int row, PopupPlace& seen);
void chooseInNextPopup(int row);

} // namespace toolkit::test
