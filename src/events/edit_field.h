// Opening a text field for editing.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Opens the field under an edit box, with the caret where it was clicked.
void AText_Click(Zevlin& form, int index);
void AText_MouseDown(Zevlin& form, int index, toolkit::MouseArguments& mouse);

} // namespace zev
