// The line on the chooser that tells the data folder, and its pop-up.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// The left button shows the folder in the desktop's file manager; the right one opens the pop-up
/// while the folder can be changed.
void LPath_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);

/// Says where the cards would go, just before the pop-up opens.
void mpopFolderMenu_Click(Zevlin& form);
void mpopMoveCards_Click(Zevlin& form);
void mpopLeaveCards_Click(Zevlin& form);

} // namespace zev
