// Taking hold of a field in design mode, dragging it and letting it go.
#pragma once

#include "design/design_field.h"
#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// A press on a field: the left button takes hold of it, the right one opens its colour menu. The
/// press is used up.
void pressField(Zevlin& form, DesignField field, toolkit::MouseArguments& mouse);

void AMark_MouseMove(Zevlin& form, int index, toolkit::MouseArguments& mouse);
void AMark_MouseUp(Zevlin& form, int index, toolkit::MouseArguments& mouse);
void AText_MouseMove(Zevlin& form, int index, toolkit::MouseArguments& mouse);
void AText_MouseUp(Zevlin& form, int index, toolkit::MouseArguments& mouse);

} // namespace zev
