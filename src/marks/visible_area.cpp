#include "marks/visible_area.h"

#include <algorithm>

#include "form/zevlin.h"

namespace zev {
namespace {

/// The screen without its task bar.
Area workArea(const Zevlin& form, const toolkit::TaskBar& bar) {
    const auto screen = toolkit::screen();
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const float width = bar.Width * twips;
    const float height = bar.Height * twips;
    Area area{0, 0, screen.Width, screen.Height};
    if (bar.Width < bar.Height && bar.Left > 0)
        area.right -= width;
    else if (bar.Width < bar.Height)
        area.left += width;
    else if (bar.Top > 0)
        area.bottom -= height;
    else
        area.top += height;
    return area;
}

} // namespace

Area visibleArea(const Zevlin& form, const toolkit::TaskBar& bar) {
    const Area work = workArea(form, bar);
    const float left = form.FrameWidth + form.Left;
    const float top = form.FrameHeight + form.Top;
    return {std::max(0.0F, work.left - left), std::max(0.0F, work.top - top),
            std::min(form.ScaleWidth(), work.right - left),
            std::min(form.ScaleHeight(), work.bottom - top)};
}

float roomAroundField(const Zevlin& form) {
    constexpr float pixels = 4;
    return pixels * static_cast<float>(form.TwipsPerPixel);
}

float pull(float at, float low, float high, float margin) {
    if (at < low) return low - at + margin;
    return at > high ? high - at - margin : 0;
}

float pullWhole(float from, float to, float low, float high, float margin) {
    if (from >= low && to <= high) return 0;
    if (to - from + 2 * margin > high - low) return low - from;
    return from < low ? low + margin - from : high - margin - to;
}

} // namespace zev
