// The clipboard, for tests.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/picture/bitmap.h"

namespace toolkit::test {

/// Puts a UTF-8 text on the clipboard, as another program does.
void fillClipboard(std::string_view utf8);

/// The text on the clipboard, in UTF-8.
[[nodiscard]] std::string clipboardText();

/// The picture on the clipboard, empty if there is none.
[[nodiscard]] Bitmap clipboardPicture();

} // namespace toolkit::test
