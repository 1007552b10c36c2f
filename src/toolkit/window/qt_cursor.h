// The cursor's place where no pointer of the platform can be moved. Internal to the toolkit.
#pragma once

#include <QtCore/QPoint>

namespace toolkit {

/// The cursor's place among all screens; cursorPosition() tells it from the form's screen.
[[nodiscard]] QPoint cursorAmongScreens();

/// From now on the cursor counts as being here, a place among all screens, until the platform's
/// pointer really moves.
void assumeCursorAt(QPoint place);

} // namespace toolkit
