// Keeping the card's place around a change of size.
#pragma once

namespace zev {

struct Zevlin;

/// Commits an open editor if one of the flags Printing and Zooming is set, and remembers where the
/// card stands.
void PositionSave(Zevlin& form);

/// Called after a change of size; the card stays where the change put it.
void PositionRestore(Zevlin& form);

} // namespace zev
