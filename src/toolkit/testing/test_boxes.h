// Boxes on the screen, for tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/testing/screen_area.h"
#include "toolkit/window/dialog.h"

namespace toolkit::test {

/// A box on the screen.
struct ShownBox {
    std::string title;
    std::string text;
    bool plain = false; ///< whether marks like <b> show as they are
    ScreenArea area{};
};
/// The next box that comes to the screen is noted and ended by its button; none closes its window.
void endNextBox(std::optional<Answer> answer, ShownBox& seen);
/// The next input box gets this text and its OK button.
void fillNextInputBox(std::string_view utf8, ShownBox& seen);
/// The row of the next pop-up menu is chosen; the menu's place is noted.
void chooseInNextPopup(int row, ScreenArea& seen);
void chooseInNextPopup(int row);

} // namespace toolkit::test
