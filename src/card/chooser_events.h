// What mouse and characters do on the chooser's panel.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Enables OK while the name has more than blanks.
void enableOk(Zevlin& form);

/// The card that is selected in the list, if any, becomes the name.
void takeSelectedName(Zevlin& form);

/// Selects the name, so that typing replaces it.
void selectName(Zevlin& form);

void BOK_Click(Zevlin& form);
void BCancel_Click(Zevlin& form);

void TSaveAs_Change(Zevlin& form);
void TSaveAs_GotFocus(Zevlin& form);
void TSaveAs_KeyPress(Zevlin& form, int& KeyAscii);
void LSaveAs_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse);

void FileList_Click(Zevlin& form);
void FileList_DblClick(Zevlin& form);
void FileList_KeyPress(Zevlin& form, int& KeyAscii);

} // namespace zev
