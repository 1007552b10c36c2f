// Values of fields and of their controls: from the layout, and for traces and the read-out.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/base/color.h"
#include "toolkit/base/error.h"
#include "toolkit/model/label.h"

namespace zev {

struct Zevlin;

/// The colour for a colour code of the layout: 2 red, 3 blue, anything else black.
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

/// A field's number, corners and size in whole twips, as the read-out of the menu bar shows them.
[[nodiscard]] std::string readOut(int index, const toolkit::Label& field);

/// "left, top, width, height" for traces.
[[nodiscard]] std::string placeText(const toolkit::Label& label);

/// Index of the first checked colour scheme, 0 if none.
[[nodiscard]] int ColorSchemeIndex(const Zevlin& form);

} // namespace zev
