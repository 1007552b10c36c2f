// The system's clipboard, for pictures.
#pragma once

#include "toolkit/bitmap.h"

namespace toolkit {

/// Puts the picture on the clipboard in the place of whatever is there. Other programs can take it
/// while this one runs.
void setClipboardPicture(const Bitmap& picture);

} // namespace toolkit
