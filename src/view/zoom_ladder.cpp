#include "view/zoom_ladder.h"

namespace zev {

std::optional<std::int16_t> stepBelowFit(const ZoomLadder& ladder, std::int16_t highest) {
    for (std::int16_t step = highest; step >= 1; --step) {
        if (ladder.at(static_cast<std::size_t>(step)) < ladder[0]) return step;
    }
    return std::nullopt;
}

std::optional<std::int16_t> stepAboveFit(const ZoomLadder& ladder, std::int16_t highest) {
    for (std::int16_t step = 1; step <= highest; ++step) {
        if (ladder.at(static_cast<std::size_t>(step)) > ladder[0]) return step;
    }
    return std::nullopt;
}

} // namespace zev
