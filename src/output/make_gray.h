// Turning a picture box grey.
#pragma once

namespace toolkit {
struct PictureBox;
}

namespace zev {

struct Zevlin;

/// Recolours the box's picture; the labels over it keep their colours.
void MakeGray(Zevlin& form, toolkit::PictureBox& picture);

/// Marks, texts, suits and time stamp in black.
void blackenLabels(Zevlin& form);

} // namespace zev
