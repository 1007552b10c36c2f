// The pop-up menu of a card in the chooser's list.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// The right button opens the pop-up of the card below the pointer.
void FileList_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);

/// Opens the pop-up of the selected card: at the pointer, or below the card's row.
enum class MenuPlace { Pointer, Row };
void openFileMenu(Zevlin& form, MenuPlace place);

void mpopOpen_Click(Zevlin& form);
/// Deletes the selected card's file, with no question asked.
void mpopDelete_Click(Zevlin& form);
/// Asks for a new name for the selected card.
void mpopRename_Click(Zevlin& form);

} // namespace zev
