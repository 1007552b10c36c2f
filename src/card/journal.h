// The journal: while a card has unsaved changes, a file outside the data folder holds them, so that
// no end of the program costs them. Each running copy has a file of its own, locked by it.
#pragma once

namespace zev {

struct Zevlin;

/// Writes what isn't in the journal yet. Does nothing while a job or a rebuild uses the controls:
/// they write it before they begin.
void flushJournal(Zevlin& form);

/// Called when the alarm that a change has set goes off: the same, or later if a job or a rebuild
/// uses the controls.
void ringJournal(Zevlin& form);

/// The same for a card whose saving failed, changed or not; false if it couldn't be written.
[[nodiscard]] bool keepForNextStart(Zevlin& form);

} // namespace zev
