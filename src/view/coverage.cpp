#include "view/coverage.h"

#include <algorithm>
#include <cmath>

namespace zev {
namespace {

// The most pixels that an area of this width touches.
int reachOf(double factor) { return static_cast<int>(std::ceil(1 / factor)) + 1; }

void addPixel(Coverage& coverage, double from, double to, int last) {
    const int first = std::min(static_cast<int>(from), last);
    const int count = std::clamp(static_cast<int>(std::ceil(to)), first + 1, last + 1) - first;
    const double end = std::min(to, last + 1.0);
    coverage.firsts.push_back(first);
    double given = 0;
    for (int i = 1; i < count; ++i) {
        const double boundary = (first + i - from) / (end - from);
        coverage.weights.push_back(static_cast<float>(boundary - given));
        given = boundary;
    }
    coverage.weights.push_back(static_cast<float>(1 - given));
    coverage.weights.resize(coverage.firsts.size() * static_cast<std::size_t>(coverage.reach));
}

} // namespace

int Coverage::countOf(int output) const {
    const float* first = weightsOf(output);
    int count = reach;
    while (count > 1 && first[count - 1] == 0) --count;
    return count;
}

Coverage coverageOf(int length, double factor, int outputLength) {
    Coverage coverage{.firsts = {}, .weights = {}, .reach = factor == 1 ? 1 : reachOf(factor)};
    const double reached = std::nearbyint(length * factor);
    const int count = static_cast<int>(std::clamp<double>(reached, 0, outputLength));
    for (int i = 0; i < count; ++i) addPixel(coverage, i / factor, (i + 1) / factor, length - 1);
    return coverage;
}

} // namespace zev
