// The cursor's place where no pointer of the platform can be moved. Internal to the toolkit.
#pragma once

#include "toolkit/screen.h"

namespace toolkit {

/// From now on the cursor counts as being here, until the platform's pointer really moves.
void assumeCursorAt(CursorPosition position);

} // namespace toolkit
