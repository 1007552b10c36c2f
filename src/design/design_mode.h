// Design mode: every mark and text area of the layout shown at once on a blank card.
#pragma once

namespace zev {

struct Zevlin;

/// Shows the Design menu and enters design mode, or leaves it and hides the menu.
void MShowDesignMenu_Click(Zevlin& form);

/// Enters design mode or leaves it. A changed card is asked about first; refused, nothing happens.
void MShowShapes_Click(Zevlin& form);

} // namespace zev
