// Finding the font in which a field's text fits.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Sets name and size of the field's font by its caption; bold and italic are the field's own. The
/// box isn't changed.
void FitText(Zevlin& form, const toolkit::TextBox& box, int index);

} // namespace zev
