// One row of a menu, on the bar or popped up. Internal to the toolkit's sources.
#pragma once

#include <string_view>

#include <QtWidgets/QMenu>

#include "toolkit/model/control.h"

namespace toolkit {

/// Adds a row as its item is now; no item makes a separator. The shortcut is only shown: keys are
/// decided elsewhere.
QAction& addMenuAction(QMenu& menu, const MenuItem* item, std::string_view shortcut);

} // namespace toolkit
