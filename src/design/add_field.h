// Adding a field to the design by pressing the right button on bare card.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// A press on bare card: the right button adds what the Design menu says, the left one takes hold
/// of the card itself.
void pressDesign(Zevlin& form, const toolkit::MouseArguments& mouse);

/// While the right button that added a field is down: a new mark follows the pointer, a new text
/// field is widened.
void shapeNewField(Zevlin& form, const toolkit::MouseArguments& mouse);

/// That button is released: a new text field gets its final look.
void letGoOfNewField(Zevlin& form);

/// What was added belongs to the layout from now on: an undo doesn't remove it.
void keepAddedField(Zevlin& form);

} // namespace zev
