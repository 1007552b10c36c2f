// The icon of the program's windows. Internal to the toolkit's sources.
#pragma once

#include <QtGui/QIcon>

namespace toolkit {

/// The same drawing in each of its sizes.
[[nodiscard]] QIcon programIcon();

} // namespace toolkit
