#include "layout/pixels.h"

#include <cmath>

namespace zev {

float px(float twips, int twipsPerPixel) {
    // In double, so that half a pixel is exact at every resolution.
    const double pixel = twipsPerPixel;
    return static_cast<float>(std::floor((twips + pixel / 2) / pixel));
}

ColorParts PointVals(toolkit::Color color) {
    return {toolkit::redOf(color), toolkit::greenOf(color), toolkit::blueOf(color)};
}

} // namespace zev
