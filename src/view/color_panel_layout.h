// Where everything stands on the colour panel.
#pragma once

namespace zev {

struct Zevlin;

/// Twips between one preset and the next.
constexpr float sampleGap = 60;

/// Sizes and places the panel and what is on it, by the measures of the text font.
void layOutColorPanel(Zevlin& form);

} // namespace zev
