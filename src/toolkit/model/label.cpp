#include "toolkit/model/label.h"

#include <algorithm>
#include <cmath>

namespace toolkit {
namespace {

/// Pixels by which a row may miss the limits: places in twips aren't more precise.
constexpr double precision = 1.0 / 256;

} // namespace

double paintedLine(double wanted, double highest, double lowest) {
    const double first = std::ceil(highest - precision);
    const double last = std::floor(lowest + precision);
    if (first <= last) return std::clamp(std::nearbyint(wanted), first, last);
    const double rowAbove = std::floor(highest);
    const double rowBelow = std::ceil(lowest);
    return highest - rowAbove < rowBelow - lowest ? highest : lowest;
}

std::string paintedText(std::string_view caption) {
    std::string painted;
    painted.reserve(caption.size());
    for (std::size_t index = 0; index < caption.size(); ++index) {
        if (caption[index] == '&' && ++index == caption.size()) break;
        painted += caption[index];
    }
    return painted;
}

std::string captionFor(std::string_view text) {
    std::string caption;
    for (const char character : text) caption.append(character == '&' ? 2 : 1, character);
    return caption;
}

} // namespace toolkit
