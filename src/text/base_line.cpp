#include "text/base_line.h"

#include <cmath>

namespace zev {
namespace {

/// In design pixels. A text that is no further than this below a rule counts as standing on it:
/// places in twips are no more precise.
constexpr float precision = 1.0F / 256;

} // namespace

toolkit::Baseline baselineOverRule(float base, const DesignPixel& pixel) {
    const bool isKnown = pixel.ofFields > 0 && pixel.ofPrint > 0;
    if (!isKnown) return {};
    const float rule = std::ceil(base / pixel.ofFields - precision);
    return {.Wanted = 0,
            .Highest = (rule - 1) * pixel.ofPrint - base,
            .Lowest = rule * pixel.ofPrint - base};
}

} // namespace zev
