// What the mouse pointer looks like. Internal to the toolkit's sources.
#pragma once

#include "toolkit/model/control.h"

class QWidget;

namespace toolkit {

/// What the hand does: it lies on the card, or holds it while it is dragged.
enum class Grip { Open, Closed };

/// Gives the widget the cursor for a pointer; Default is that of the widget behind it.
void setPointer(QWidget& widget, MousePointer pointer, Grip grip = Grip::Open);

} // namespace toolkit
