// The line on the chooser that shows the data folder, and its pop-up menu.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// The left button shows the folder in the file manager; the right one opens the pop-up menu while
/// the folder can still be changed.
void LPath_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);

/// Just before the pop-up menu opens: says where the cards would go.
void mpopFolderMenu_Click(Zevlin& form);
void mpopMoveCards_Click(Zevlin& form);
void mpopLeaveCards_Click(Zevlin& form);

} // namespace zev
