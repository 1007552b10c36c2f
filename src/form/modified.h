// The card's modified flag, and the title that shows it.
#pragma once

namespace zev {

struct Zevlin;

/// Marks the card as changed.
void SetMod(Zevlin& form);

/// Marks the card as unchanged and drops the undo. Does nothing while printing.
void ResetMod(Zevlin& form);

/// Builds the form's title and renews the time stamp.
void SetCaption(Zevlin& form);

} // namespace zev
