#include "app/field_values.h"

#include "app/zevlin.h"

namespace zev {

toolkit::Color fieldColor(const Zevlin& form, int colorCode) {
    if (colorCode == 2) return form.ColorRed;
    return colorCode == 3 ? form.ColorBlue : toolkit::black;
}

} // namespace zev
