// Who answers boxes. Internal to the toolkit's sources.
#pragma once

#include "toolkit/dialog.h"

class QWidget;

namespace toolkit {

[[nodiscard]] DialogAnswers& dialogAnswers();

/// The window that boxes lie over, nullptr before it is shown.
[[nodiscard]] QWidget* boxParent();

} // namespace toolkit
