// The colour scheme: the layout's own colours, or one for all.
#pragma once

namespace zev {

struct Zevlin;

/// Chooses the scheme with this index of the menu: index 0 is the ACBL's, the last one opens the
/// panel for a colour. While the program initializes, the stored colour stands and no panel opens.
void mColorScheme_Click(Zevlin& form, int index);

/// Paints all fields in the present scheme; the fields' own colours stay remembered.
void SetGlobalColors(Zevlin& form);

/// Remembers each field's present colour as its own.
void KeepFieldColors(Zevlin& form);

} // namespace zev
