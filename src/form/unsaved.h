// The file that keeps unsaved changes: its name and lock, when it is to be written next, its end.
#pragma once

#include <filesystem>
#include <vector>

namespace zev {

struct Zevlin;

/// The card has changed, or the text of the open field: the journal has it within two seconds.
void noteChange(Zevlin& form);

/// Whether a job or a rebuild uses the controls just now: what they hold isn't the player's card.
[[nodiscard]] bool isCardAway(const Zevlin& form);

/// Gives the journal a file that no other copy of the program has, and locks it until this one
/// ends. Failures as those of files.
void openJournal(Zevlin& form);

/// The journals of all copies, living and dead. Some are no more than their lock.
[[nodiscard]] std::vector<std::filesystem::path> journalFiles();
/// The file that is a journal's lock.
[[nodiscard]] std::filesystem::path lockOf(std::filesystem::path journal);

/// Whether another living copy of the program holds a journal, as each does that has set the
/// layout's file aside.
[[nodiscard]] bool isAnotherCopyAtWork(const Zevlin& form);

/// The card was saved, or its changes were given up.
void dropJournal(Zevlin& form);

/// Removes the file of a journal, or empties it where its folder lets none go: no start offers it.
void discardJournal(const std::filesystem::path& file);

} // namespace zev
