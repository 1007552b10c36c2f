// Who answers boxes. Internal to the toolkit's sources.
#pragma once

class QWidget;

namespace toolkit {

struct DialogAnswers;

[[nodiscard]] DialogAnswers& dialogAnswers();

/// The window that boxes lie over, nullptr before it is shown.
[[nodiscard]] QWidget* boxParent();

} // namespace toolkit
