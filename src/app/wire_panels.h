// The panels over the form, their events wired to the procedures.
#pragma once

#include <vector>

#include "toolkit/model/panel.h"

namespace zev {

struct Zevlin;

[[nodiscard]] std::vector<toolkit::PanelContents> wirePanels(Zevlin& form);

/// Lays out anew, for the form's present size, what lies over it.
void Form_Resize(Zevlin& form);

} // namespace zev
