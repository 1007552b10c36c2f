// The help page on paper: its lines, one below the other, on as many pages as they need.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/text/font_spec.h"

namespace zev {

/// Points, on the screen as on paper.
constexpr float largestHelpFont = 11;

/// The font in its largest size, from `largestHelpFont` down, in which the widest line fits into
/// the width, twips.
[[nodiscard]] toolkit::FontSpec fittedHelpFont(toolkit::FontSpec font,
                                               std::span<const std::string> lines, float width);

/// The room for text on a page, twips.
struct PageRoom {
    float width = 0;
    float height = 0;
};

struct PrintedLine {
    std::string text;
    std::size_t page = 0; ///< from 0
    float top = 0;        ///< twips from the upper end of the room
};

struct PrintedHelp {
    toolkit::FontSpec font;
    std::vector<PrintedLine> lines; ///< in order, without the empty ones
};

/// The page's lines as they are printed below a title. What tells how to close the window is left
/// out, and a line of "_" begins a page. The font's size is chosen to suit.
[[nodiscard]] PrintedHelp printedHelp(const toolkit::FontSpec& font,
                                      std::span<const std::string> lines, std::string_view title,
                                      const PageRoom& room);

} // namespace zev
