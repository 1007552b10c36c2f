// The card's modified flag, the title that shows it, and the question before changes are lost.
#pragma once

namespace zev {

struct Zevlin;

/// Marks the card as changed.
void SetMod(Zevlin& form);

/// Marks the card as unchanged and drops the undo. Stands still while printing.
void ResetMod(Zevlin& form);

/// Commits an open field and asks about unsaved changes; true if the caller must not go on.
[[nodiscard]] bool CheckMod(Zevlin& form);

/// Builds the form's title and renews the time stamp.
void SetCaption(Zevlin& form);

} // namespace zev
