// The pop-up menu of a text field: what has a key, too, goes by the key's path.
#pragma once

namespace zev {

struct Zevlin;

void mpopUndo_Click(Zevlin& form);
void mpopBold_Click(Zevlin& form);
void mpopItalic_Click(Zevlin& form);
void mpopLeft_Click(Zevlin& form);

/// Opens the menu.
void openTextMenu(Zevlin& form);

} // namespace zev
