// Writing an exported picture to its file.
#pragma once

namespace toolkit {
struct PictureBox;
}

namespace zev {

struct Zevlin;

/// Asks for the name and writes the box's picture in the format that the checked item tells.
void SaveImageToDisk(Zevlin& form, const toolkit::PictureBox& picture);

} // namespace zev
