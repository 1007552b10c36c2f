// The system's clipboard.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/picture/bitmap.h"
#include "toolkit/text/typed_text.h"

namespace toolkit {

/// Puts the picture on the clipboard in the place of whatever is there. Other programs can take it
/// while this one runs; when it ends, a clipboard manager gets it where the desktop has one.
void setClipboardPicture(const Bitmap& picture);

/// Likewise a text of the program's code page: other programs get the signs of the suits for its
/// escapes, boxes of this one the text as it is.
void setClipboardText(std::string_view text);

/// Whether the clipboard holds still what setClipboardText put there last; what a box puts there by
/// itself is something else.
[[nodiscard]] bool holdsClipboardText();

/// Whether there is any text on the clipboard.
[[nodiscard]] bool hasClipboardText();

/// The text on the clipboard as it goes in there; empty if there is none.
[[nodiscard]] std::string clipboardText(const TextAround& around);

} // namespace toolkit
