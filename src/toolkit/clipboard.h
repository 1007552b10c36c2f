// The system's clipboard.
#pragma once

#include <string_view>

#include "toolkit/bitmap.h"

namespace toolkit {

/// Puts the picture on the clipboard in the place of whatever is there. Other programs can take it
/// while this one runs; when it ends, a clipboard manager gets it where the desktop has one.
void setClipboardPicture(const Bitmap& picture);

/// Likewise a text of the program's code page.
void setClipboardText(std::string_view text);

} // namespace toolkit
