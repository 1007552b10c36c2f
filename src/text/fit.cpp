#include "text/fit.h"

namespace zev {

toolkit::FontSpec fittedFont(const FitRequest& request, const MeasureText& measure) {
    constexpr float step = 0.5F;
    // A margin of one blank's width.
    const std::string measured = std::string(request.text) + ' ';
    toolkit::FontSpec font = request.regular;
    if (measure(font, measured) <= request.width) return font;
    font.Name = request.narrowFontName;
    while (font.Size > request.smallSize / 2 && measure(font, measured) > request.width) {
        const float smaller = font.Size - step;
        // From a size so large that half a point is lost in rounding, the ladder would never end.
        if (!(smaller < font.Size)) break;
        font.Size = smaller;
    }
    return font;
}

int caretAt(std::string_view text, float x, float offset,
            const std::function<float(std::string_view)>& width) {
    for (std::size_t length = 0; length <= text.size(); ++length) {
        if (width(text.substr(0, length)) + offset >= x) return static_cast<int>(length);
    }
    return static_cast<int>(text.size()) + 1;
}

} // namespace zev
