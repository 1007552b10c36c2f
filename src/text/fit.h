// The ladder of fonts on which a text finds the size that fits its area.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "toolkit/text/font.h"

namespace zev {

struct FitRequest {
    toolkit::FontSpec regular; ///< the regular font at the field's full size, with its styles
    std::string narrowFontName;
    float smallSize = 0;   ///< size of ordinary fields; the ladder ends at half of it
    float width = 0;       ///< twips that the text may take, equal counts as fitting
    std::string_view text; ///< measured with one more blank
};
/// Width of a text in a font, twips.
using MeasureText = std::function<float(const toolkit::FontSpec&, std::string_view)>;

/// Regular font at full size, the narrow one, the narrow one half a point smaller and so on, down
/// to the first size that isn't above half of `smallSize`.
[[nodiscard]] toolkit::FontSpec fittedFont(const FitRequest& request, const MeasureText& measure);

/// The caret for a click: the first length of text whose width plus `offset` reaches x; the text's
/// length + 1 where none does.
[[nodiscard]] int caretAt(std::string_view text, float x, float offset,
                          const std::function<float(std::string_view)>& width);

} // namespace zev
