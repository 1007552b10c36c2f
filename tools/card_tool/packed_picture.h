// The form in which the program carries pictures inside itself.
#pragma once

#include <string>

#include "toolkit/picture/indexed_picture.h"

namespace card_tool {

/// The bytes that toolkit::decodePicture reads back; README.md tells their order.
[[nodiscard]] std::string packed(const toolkit::IndexedPicture& picture);

} // namespace card_tool
