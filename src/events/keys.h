// The keys of the form and of the card.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Sees every key before the controls of the form.
void Form_KeyDown(Zevlin& form, toolkit::KeyArguments& key);

/// Gets what the form didn't consume while the card has the focus.
void P1_KeyDown(Zevlin& form, toolkit::KeyArguments& key);

} // namespace zev
