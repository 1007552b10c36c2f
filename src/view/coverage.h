// Which pixels of a picture each pixel of a smaller one covers, along one direction.
#pragma once

#include <vector>

namespace zev {

/// Output pixel i covers the input pixels from `firsts`[i] on, `reach` of them; their weights sum
/// to 1. One that covers fewer has weights of 0 at the end.
struct Coverage {
    std::vector<int> firsts;
    std::vector<float> weights; ///< `reach` for each output pixel
    int reach = 1;

    [[nodiscard]] int size() const { return static_cast<int>(firsts.size()); }
    [[nodiscard]] const float* weightsOf(int output) const {
        return &weights[static_cast<std::size_t>(output) * static_cast<std::size_t>(reach)];
    }
    /// How many of the covered pixels have a weight above 0.
    [[nodiscard]] int countOf(int output) const;
};

/// The coverage for `length` pixels shrunk by `factor` (0 < factor <= 1), cut at `outputLength`.
[[nodiscard]] Coverage coverageOf(int length, double factor, int outputLength);

} // namespace zev
