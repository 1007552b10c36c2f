// Whether a picture is still white: traces that show where a job loses the card.
#pragma once

#include <string_view>

namespace toolkit {
struct PictureBox;
}

namespace zev {

struct Zevlin;

/// With tracing on, writes whether the picture box is blank. Nothing depends on it.
void TestBlankPage(Zevlin& form, std::string_view label, const toolkit::PictureBox& picture);

} // namespace zev
