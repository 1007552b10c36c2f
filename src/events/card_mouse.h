// The mouse on bare card: setting marks, and dragging the card.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

void P1_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);
void P1_MouseMove(Zevlin& form, toolkit::MouseArguments& mouse);
void P1_MouseUp(Zevlin& form, toolkit::MouseArguments& mouse);
void P1_Click(Zevlin& form);

} // namespace zev
