// The panels over the form, their events wired to the procedures.
#pragma once

#include <vector>

#include "toolkit/model/panel.h"

namespace zev {

struct Zevlin;

[[nodiscard]] std::vector<toolkit::PanelContents> wirePanels(Zevlin& form);

} // namespace zev
