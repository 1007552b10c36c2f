// New, Open and Save As.
#pragma once

namespace zev {

struct Zevlin;

/// Makes an empty, unnamed card, after the question about unsaved changes.
void MNew_Click(Zevlin& form);

/// Clears the card, asks for a name and loads that card.
void MOpen_Click(Zevlin& form);

/// The same; it has no menu item.
void MOpenLast_Click(Zevlin& form);

/// Asks for a name and saves the card under it.
void MSaveAs_Click(Zevlin& form);

} // namespace zev
