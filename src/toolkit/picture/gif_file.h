// GIF files.
#pragma once

#include <string>

#include "toolkit/picture/indexed_picture.h"

namespace toolkit {

/// The file's content. What the format can't hold is failure 481.
[[nodiscard]] std::string gifFile(const IndexedPicture& picture);

} // namespace toolkit
