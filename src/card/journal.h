// The journal: while a card has unsaved changes, a file outside the data folder holds them, so that
// no end of the program costs them. Each running copy has a file of its own, locked by it.
#pragma once

namespace zev {

struct Zevlin;

/// Writes what isn't in the journal yet. Does nothing while a job or a rebuild has the card in its
/// hands: it was written before.
void flushJournal(Zevlin& form);

/// The alarm of a change rings: the same, or later where the card is away.
void ringJournal(Zevlin& form);

/// The same for a card whose saving failed, changed or not; false if it couldn't be written.
[[nodiscard]] bool keepForNextStart(Zevlin& form);

} // namespace zev
