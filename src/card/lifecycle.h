// New and Open.
#pragma once

namespace zev {

struct Zevlin;

/// Makes an empty, unnamed card, after the question about unsaved changes.
void MNew_Click(Zevlin& form);

/// Clears the card, asks for a name and loads that card.
void MOpen_Click(Zevlin& form);

/// The same; it has no menu item.
void MOpenLast_Click(Zevlin& form);

} // namespace zev
