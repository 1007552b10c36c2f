// What keys that are no characters do in the chooser.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Up and down walk the list without leaving the name. The list's keys for pop-up and rename work
/// here, too, as long as the name is that of the selected card.
void TSaveAs_KeyDown(Zevlin& form, toolkit::KeyArguments& key);

/// On the selected card: Enter takes it, Menu and Shift+F10 open its pop-up, Delete and F2 do what
/// the pop-up's Delete and Rename do.
void FileList_KeyDown(Zevlin& form, toolkit::KeyArguments& key);

} // namespace zev
