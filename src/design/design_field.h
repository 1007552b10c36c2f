// The controls of the fields that design mode moves about.
#pragma once

#include <string>
#include <vector>

#include "form/design_state.h"
#include "toolkit/base/color.h"
#include "toolkit/model/label.h"

namespace zev {

struct Zevlin;

/// A field that doesn't exist is failure 340.
[[nodiscard]] toolkit::Label& labelOf(Zevlin& form, DesignField field);

/// Whether a mark is a checkmark or a filled-in square, and whether it is a circle. The character
/// that it is drawn with alone tells.
[[nodiscard]] bool isCheck(const toolkit::Label& mark);
[[nodiscard]] bool isCircle(const toolkit::Label& mark);

/// The colours of all fields of the kind, by field number.
[[nodiscard]] std::vector<toolkit::Color>& colorsOf(Zevlin& form, FieldKind kind);

/// The unit 256 times, without its last blank: it fills the widest field and so shows its width.
[[nodiscard]] std::string widthPattern(std::string unit);

/// Shows the field's number, place and size on the menu bar.
void showReadOut(Zevlin& form, DesignField field);

} // namespace zev
