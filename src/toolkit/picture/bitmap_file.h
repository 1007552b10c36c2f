// Pictures from and to image files.
#pragma once

#include <filesystem>

#include "toolkit/picture/bitmap.h"

namespace toolkit {

/// Reads an image file (GIF, PNG, JPEG, BMP); transparent parts become white. A file that is none
/// is failure 481, one that can't be read fails as readFile does.
[[nodiscard]] Bitmap loadBitmap(const std::filesystem::path& path);

/// Writes a PNG file; for tests, screenshots and the windowless demonstration. An empty picture is
/// failure 57, else it fails as writeFile does.
void savePng(const Bitmap& bitmap, const std::filesystem::path& path);

} // namespace toolkit
