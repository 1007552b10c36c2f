// The ladder of sizes: which step lies beside a fit.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace zev {

/// Cell 0 is the scale of a fit, 0 without one; the steps rise from cell 1 on.
using ZoomLadder = std::array<float, 12>;

/// The highest step from `highest` down that is smaller than the fit; none if all are larger.
[[nodiscard]] std::optional<std::int16_t> stepBelowFit(const ZoomLadder& ladder,
                                                       std::int16_t highest);

/// The lowest step up to `highest` that is larger than the fit; none if all are smaller.
[[nodiscard]] std::optional<std::int16_t> stepAboveFit(const ZoomLadder& ladder,
                                                       std::int16_t highest);

} // namespace zev
