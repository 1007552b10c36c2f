// The form's gradient, line by line. Internal to the toolkit's sources.
#pragma once

#include <QtGui/QBrush>
#include <QtGui/QColor>

#include "toolkit/model/form.h"

namespace toolkit {

/// The colour of the line `y` pixels below the top of a form of this height.
[[nodiscard]] QColor gradientColor(const FormBackground& background, int y, int height);

/// Paints the lines from `top` on, as many as `count`, each repeated to the right without
/// end; line 0 of the result is the first of them.
[[nodiscard]] QBrush gradientBrush(const FormBackground& background, int height, int top,
                                   int count);

} // namespace toolkit
