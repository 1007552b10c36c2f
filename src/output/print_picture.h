// Delivering a picture box to the page, an image file or the clipboard.
#pragma once

namespace toolkit {
struct PictureBox;
}

namespace zev {

struct Zevlin;

/// Place on the page: printer pixels for the primary method, twips for the alternate one.
struct PagePlace {
    float x = 0;
    float y = 0;
    float height = 0; ///< for the alternate method
};

/// Flattens the box with its labels and delivers it. Each step has a trap of its own: a failure is
/// traced and told, and the next step runs.
void PrintPictureBox(Zevlin& form, toolkit::PictureBox& picture, const PagePlace& place);

/// Whether an export or a copy runs the pipeline.
[[nodiscard]] bool isExporting(const Zevlin& form);

} // namespace zev
