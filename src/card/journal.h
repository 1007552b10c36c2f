// The journal: while a card has unsaved changes, a file outside the data folder holds them, so that
// no end of the program costs them. Each running copy has a file of its own, locked by it.
#pragma once

namespace zev {

struct Zevlin;

/// The card has changed, or the text of the open field: the journal has it within two seconds.
void noteChange(Zevlin& form);

/// Writes what isn't in the journal yet. Does nothing while a job or a rebuild has the card in its
/// hands: it was written before.
void flushJournal(Zevlin& form);

/// The same for a card whose saving failed, changed or not; false if it couldn't be written.
[[nodiscard]] bool keepForNextStart(Zevlin& form);

/// The card was saved, or its changes were given up.
void dropJournal(Zevlin& form);

} // namespace zev
