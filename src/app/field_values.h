// From a layout record's values to a control's.
#pragma once

#include <cstdint>
#include <vector>

#include "toolkit/color.h"
#include "toolkit/error.h"

namespace zev {

struct Zevlin;

/// Colour of the layout's code: 2 red, 3 blue, anything else black.
[[nodiscard]] toolkit::Color fieldColor(const Zevlin& form, int colorCode);

/// The cell of a one-based array; an index outside it is failure 9.
template <typename Value>
Value& cellOf(std::vector<Value>& values, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= values.size()) {
        throw toolkit::RunTimeError(toolkit::Failure::SubscriptOutOfRange);
    }
    return values[static_cast<std::size_t>(index)];
}

/// Makes room up to the index, keeping the content.
template <typename Value>
void growTo(std::vector<Value>& values, int index) {
    if (values.size() <= static_cast<std::size_t>(index)) {
        values.resize(static_cast<std::size_t>(index) + 1);
    }
}

} // namespace zev
