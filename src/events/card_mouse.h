// The mouse on bare card: setting marks, and dragging the card.
#pragma once

#include "toolkit/model/control.h"
#include "toolkit/model/control_array.h"

namespace zev {

struct Zevlin;

void P1_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);
void P1_MouseMove(Zevlin& form, toolkit::MouseArguments& mouse);
void P1_MouseUp(Zevlin& form, toolkit::MouseArguments& mouse);
void P1_Click(Zevlin& form);

/// What the pointer looks like over a label of the group, or over bare card (nullptr) at this
/// place: what a click would open gets the I-beam, what a press would drag gets the hand.
[[nodiscard]] toolkit::MousePointer pointerOver(const Zevlin& form,
                                                const toolkit::ControlArray<toolkit::Label>* group,
                                                float X, float Y);

} // namespace zev
