// The card for screen readers and what works like them: what each field is called, says and does.
#pragma once

#include "toolkit/model/accessible_card.h"

namespace zev {

struct Zevlin;

/// The form behind the window's questions.
[[nodiscard]] toolkit::AccessibleCard accessibleCard(Zevlin& form);

} // namespace zev
