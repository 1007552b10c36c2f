// The file that keeps unsaved changes: when it is to be written next, and its end.
#pragma once

#include <filesystem>

namespace zev {

struct Zevlin;

/// The card has changed, or the text of the open field: the journal has it within two seconds.
void noteChange(Zevlin& form);

/// The card was saved, or its changes were given up.
void dropJournal(Zevlin& form);

/// Removes the file of a journal, or empties it where its folder lets none go: no start offers it.
void discardJournal(const std::filesystem::path& file);

} // namespace zev
