#include "marks/hit_test.h"
#include "layout/field.h"

namespace zev {

bool hitsMark(const toolkit::Label& mark, float x, float y, int twipsPerPixel) {
    constexpr float pixels = 5;
    const float tolerance = pixels * static_cast<float>(twipsPerPixel);
    return mark.Left < x && x + tolerance < mark.Left + mark.Width && y - tolerance > mark.Top &&
           y + tolerance < mark.Top + mark.Height;
}

std::optional<int> markAt(const toolkit::ControlArray<toolkit::Label>& marks, float x, float y,
                          int twipsPerPixel) {
    for (int i = 1; i <= marks.UBound(); ++i) {
        if (isField(marks[i]) && hitsMark(marks[i], x, y, twipsPerPixel)) return i;
    }
    return std::nullopt;
}

} // namespace zev
