// Writing an exported picture to its file.
#pragma once

#include <filesystem>

namespace toolkit {
class Bitmap;
struct PictureBox;
} // namespace toolkit

namespace zev {

struct Zevlin;

/// Asks for the name and writes the box's picture in the format that the checked item tells.
void SaveImageToDisk(Zevlin& form, const toolkit::PictureBox& picture);

/// Writes the picture as an export does, in the format of the file's extension. Failures of
/// writeFile, and 5 for an extension that no format has.
void writePicture(const toolkit::Bitmap& picture, const std::filesystem::path& file);

} // namespace zev
