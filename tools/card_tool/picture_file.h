#pragma once

#include "card_tool/picture.h"

#include <filesystem>

namespace card {

/// Writes a picture as a GIF. Throws Failure if it can't.
void writeGif(const IndexedPicture& picture, const std::filesystem::path& path);

/// Writes a picture in the compact form that README.md tells of. Throws Failure if it can't.
void writePacked(const IndexedPicture& picture, const std::filesystem::path& path);

} // namespace card
