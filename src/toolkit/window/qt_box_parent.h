// The window that boxes lie over. Internal to the toolkit's sources.
#pragma once

class QWidget;

namespace toolkit {

/// nullptr before it is shown.
[[nodiscard]] QWidget* boxParent();

} // namespace toolkit
